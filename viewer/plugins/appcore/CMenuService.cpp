// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CMenuService.h"

#include "plugins/appcore/CActionContainer.h"
#include "plugins/appcore/CCommand.h"
#include "windows/Mnemonic.h"

#include <algorithm>

#include <QAction>
#include <QSet>

namespace Plugin {
namespace AppCore {

namespace {

CMenuEntry entryFor(const ICommand *command, const Core::CId &menu, const Core::CId &group)
{
    const QAction *action = command->action();
    return {command->id(), Windows::withoutMnemonic(action->text()), menu, group,
            action->isEnabled()};
}

bool isActive(const Core::AppCoreComponents::CContext &context)
{
    return context.contains(Core::CId("AppCore.Global.Context"));
}

} // namespace

CMenuService::CMenuService(QObject *parent)
    : IMenuControlService(parent)
{}

CMenuService::~CMenuService() = default;

IActionContainer *CMenuService::findActionContainer(const Core::CId &id) const
{
    return container(id);
}

ICommand *CMenuService::registerAction(QAction *action, const Core::CId &id,
                                       const Core::AppCoreComponents::CContext &context)
{
    if (!action || !id.isValid()) {
        return nullptr;
    }
    CCommand *command = commandFor(id);
    replaceAction(command, action);
    command->setAction(action, context);
    connect(action, &QObject::destroyed, this, [this, id] { dropWithoutAction(id); });
    return command;
}

IActionContainer *CMenuService::createActionContainer(const Core::CId &id, const QString &title)
{
    if (!id.isValid()) {
        return nullptr;
    }
    if (!container(id)) {
        m_containers.push_back(std::make_unique<CActionContainer>(id, title));
    }
    return container(id);
}

void CMenuService::addGroup(const Core::CId &menu, const Core::CId &group)
{
    if (CActionContainer *found = container(menu)) {
        found->addGroup(group);
    }
}

QList<QMenu *> CMenuService::menus() const
{
    QList<QMenu *> menus;
    for (const auto &container : m_containers) {
        menus.append(container->menu());
    }
    return menus;
}

QList<CMenuEntry> CMenuService::entries() const
{
    QList<CMenuEntry> entries;
    QSet<Core::CId> inMenus;
    for (const auto &container : m_containers) {
        for (const CActionContainer::CGroup &group : container->groups()) {
            for (const ICommand *command : group.commands) {
                entries.append(entryFor(command, container->id(), group.id));
                inMenus.insert(command->id());
            }
        }
    }
    for (const auto &command : m_commands) {
        if (!inMenus.contains(command->id())) {
            entries.append(entryFor(command.get(), {}, {}));
        }
    }
    return entries;
}

IMenuControlService::TriggerResult CMenuService::trigger(const Core::CId &id)
{
    const auto found = std::find_if(m_commands.begin(), m_commands.end(),
                                    [&id](const auto &command) { return command->id() == id; });
    if (found == m_commands.end()) {
        return TriggerResult::Unknown;
    }
    if (!isActive((*found)->context())) {
        return TriggerResult::NotApplicable;
    }
    QAction *action = (*found)->action();
    if (!action->isEnabled()) {
        return TriggerResult::Disabled;
    }
    action->trigger();
    return TriggerResult::Triggered;
}

CActionContainer *CMenuService::container(const Core::CId &id) const
{
    for (const auto &container : m_containers) {
        if (container->id() == id) {
            return container.get();
        }
    }
    return nullptr;
}

CCommand *CMenuService::commandFor(const Core::CId &id)
{
    for (const auto &command : m_commands) {
        if (command->id() == id) {
            return command.get();
        }
    }
    m_commands.push_back(std::make_unique<CCommand>(id));
    return m_commands.back().get();
}

void CMenuService::replaceAction(const CCommand *command, QAction *action)
{
    QAction *former = command->action();
    if (!former || former == action) {
        return;
    }
    for (const auto &container : m_containers) {
        container->replaceAction(former, action);
    }
}

void CMenuService::dropWithoutAction(const Core::CId &id)
{
    const auto dropped =
        std::find_if(m_commands.begin(), m_commands.end(), [&](const auto &command) {
            return command->id() == id && !command->action();
        });
    if (dropped == m_commands.end()) {
        return;
    }
    for (const auto &container : m_containers) {
        container->removeCommand(dropped->get());
    }
    m_commands.erase(dropped);
}

} // namespace AppCore
} // namespace Plugin
