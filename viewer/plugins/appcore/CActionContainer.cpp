// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CActionContainer.h"

#include <Plugin/AppCore/ICommand.h>

#include <algorithm>

#include <QAction>
#include <QMenu>

namespace Plugin {
namespace AppCore {

CActionContainer::CActionContainer(const Core::CId &id, const QString &title)
    : m_id(id)
    , m_menu(new QMenu(title))
{
    m_menu->setObjectName(id.toString());
}

CActionContainer::~CActionContainer() = default;

const Core::CId &CActionContainer::id() const
{
    return m_id;
}

QMenu *CActionContainer::menu() const
{
    return m_menu.data();
}

const QList<CActionContainer::CGroup> &CActionContainer::groups() const
{
    return m_groups;
}

void CActionContainer::addGroup(const Core::CId &group)
{
    if (indexOf(group) < 0) {
        m_groups.append({group, m_menu->addSeparator(), {}});
    }
}

void CActionContainer::addCommand(ICommand *command, const Core::CId &group)
{
    if (!command || contains(command)) {
        return;
    }
    addGroup(group);
    const int index = indexOf(group);
    QAction *next = index + 1 < m_groups.size() ? m_groups.at(index + 1).separator : nullptr;
    m_menu->insertAction(next, command->action());
    m_groups[index].commands.append(command);
}

void CActionContainer::removeCommand(const ICommand *command)
{
    for (CGroup &group : m_groups) {
        group.commands.removeAll(const_cast<ICommand *>(command));
    }
    if (command->action()) {
        m_menu->removeAction(command->action());
    }
}

void CActionContainer::replaceAction(QAction *action, QAction *replacement)
{
    if (m_menu->actions().contains(action)) {
        m_menu->insertAction(action, replacement);
        m_menu->removeAction(action);
    }
}

bool CActionContainer::contains(const ICommand *command) const
{
    return std::any_of(m_groups.begin(), m_groups.end(), [command](const CGroup &group) {
        return group.commands.contains(const_cast<ICommand *>(command));
    });
}

int CActionContainer::indexOf(const Core::CId &group) const
{
    for (int index = 0; index < m_groups.size(); ++index) {
        if (m_groups.at(index).id == group) {
            return index;
        }
    }
    return -1;
}

} // namespace AppCore
} // namespace Plugin
