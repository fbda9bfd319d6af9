// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptLanguage.h"

#include "plugins/localization/ILanguageService.h"

namespace Scripting {

using Plugin::Localization::ILanguageService;

QString CScriptLanguage::get()
{
    const auto languages = service<ILanguageService>("Localization");
    return languages ? languages->language() : QString();
}

void CScriptLanguage::set(const QString &language)
{
    if (const auto languages = service<ILanguageService>("Localization")) {
        languages->setLanguage(language);
    }
}

} // namespace Scripting
