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
    const auto languages = service<ILanguageService>("Localization");
    if (languages && !languages->setLanguage(language)) {
        fail(QStringLiteral(
                 "there is no language \"%1\": give one of %2, or an empty text to follow "
                 "the system")
                 .arg(language, languages->languages().join(QStringLiteral(", "))));
    }
}

} // namespace Scripting
