// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/MenuEntry.h"

#include "windows/Mnemonic.h"
#include "windows/OnLanguageChange.h"

#include <Core/AppCoreComponents/CContext.h>
#include <Plugin/AppCore/IActionContainer.h>
#include <Plugin/AppCore/IMenuService.h>

#include <utility>

#include <QAction>

namespace Windows {

namespace {

// Qt leaves a mnemonic in parentheses to be seen in tool bars and tool tips.
void setText(QAction &action, const QString &text)
{
    action.setText(text);
    action.setIconText(withoutMnemonic(text).remove(QStringLiteral("...")));
}

} // namespace

QAction *addMenuEntry(Plugin::AppCore::IMenuService &menus, const MenuEntry &entry,
                      std::function<QString()> text, QObject *owner)
{
    using Core::CId;
    auto *action = new QAction(owner);
    action->setShortcut(entry.shortcut);
    onLanguageChange(action, [action, text = std::move(text)] { setText(*action, text()); });

    const Core::AppCoreComponents::CContext everywhere(CId("AppCore.Global.Context"));
    auto *command = menus.registerAction(action, CId(entry.id), everywhere);
    if (auto *menu = menus.findActionContainer(CId(entry.menu))) {
        menu->addCommand(command, CId(entry.group));
    }
    return action;
}

} // namespace Windows
