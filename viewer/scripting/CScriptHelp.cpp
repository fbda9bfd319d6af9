// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptHelp.h"

#include "plugins/help/IHelpViewService.h"

namespace Scripting {

QString CScriptHelp::lastShown()
{
    const auto help = service<Plugin::Help::IHelpViewService>("Help");
    return help ? help->lastShown() : QString();
}

} // namespace Scripting
