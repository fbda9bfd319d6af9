// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "FakeShell.h"

#include <Core/AppCoreComponents/CContext.h>

using namespace Plugin::AppCore;

IActionContainer *FakeMenuService::findActionContainer(const Core::CId &id) const
{
    calls.append(QStringLiteral("findActionContainer(%1)").arg(id.toString()));
    if (id != Core::CId("NerixViewer.Menu.Help")) {
        return nullptr;
    }
    return const_cast<FakeMenuService *>(this);
}

ICommand *FakeMenuService::registerAction(QAction *action, const Core::CId &id,
                                          const Core::AppCoreComponents::CContext &context)
{
    QStringList contexts;
    for (const Core::CId &contextId : context.ids()) {
        contexts.append(contextId.toString());
    }
    calls.append(QStringLiteral("registerAction(%1 | %2 | %3)")
                     .arg(action->text(), id.toString(), contexts.join(QLatin1Char(','))));
    registeredAction = action;
    if (onActionRegistered) {
        onActionRegistered();
    }
    m_command.commandId = id;
    m_command.commandAction = action;
    return &m_command;
}

void FakeMenuService::addCommand(ICommand *command, const Core::CId &group)
{
    calls.append(
        QStringLiteral("addCommand(%1 | %2)").arg(command->id().toString(), group.toString()));
}
