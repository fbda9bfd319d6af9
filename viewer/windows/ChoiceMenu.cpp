// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/ChoiceMenu.h"

#include "windows/OnLanguageChange.h"

#include <Core/AppCoreComponents/CContext.h>
#include <Plugin/AppCore/ICommand.h>
#include <Plugin/AppCore/IMenuService.h>

#include <memory>
#include <utility>

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace Windows {

namespace {

QAction *makeChoice(Plugin::AppCore::IMenuService &menus, const Choice &choice, QActionGroup *group)
{
    using Core::CId;
    auto *action = new QAction(group);
    action->setCheckable(true);
    action->setData(choice.value);
    onLanguageChange(action, [action, choice] { action->setText(choice.text()); });
    menus.registerAction(action, CId(choice.id.constData()),
                         Core::AppCoreComponents::CContext(CId("AppCore.Global.Context")));
    return group->addAction(action);
}

// A menu is a widget, which no other object can own.
QMenu *makeSubmenu(QAction *title)
{
    const std::shared_ptr<QMenu> menu = std::make_shared<QMenu>();
    title->setMenu(menu.get());
    QObject::connect(title, &QObject::destroyed, menu.get(), [menu] {});
    return menu.get();
}

} // namespace

QActionGroup *addChoiceMenu(Plugin::AppCore::IMenuService &menus, const MenuEntry &entry,
                            std::function<QString()> text, const QVector<Choice> &choices,
                            std::function<QString()> current,
                            std::function<void(const QString &)> choose, QObject *owner)
{
    QAction *title = addMenuEntry(menus, entry, std::move(text), owner);
    auto *group = new QActionGroup(title);
    QMenu *submenu = makeSubmenu(title);
    for (const Choice &choice : choices) {
        submenu->addAction(makeChoice(menus, choice, group));
    }
    const auto mark = [group, current = std::move(current)] {
        const auto actions = group->actions();
        for (QAction *action : actions) {
            action->setChecked(action->data().toString() == current());
        }
    };
    mark();
    QObject::connect(submenu, &QMenu::aboutToShow, group, mark);
    QObject::connect(
        group, &QActionGroup::triggered, group,
        [choose = std::move(choose)](QAction *action) { choose(action->data().toString()); });
    return group;
}

} // namespace Windows
