// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <Plugin/AppCore/IActionContainer.h>

#include <QList>
#include <QScopedPointer>
#include <QString>

class QAction;
class QMenu;

namespace Plugin {
namespace AppCore {

/// A menu on a real `QMenu`, which hides the separators of groups that are empty. GUI thread.
class CActionContainer : public IActionContainer
{
public:
    /// A group of commands. Its separator stands above it.
    struct CGroup
    {
        Core::CId id;
        QAction *separator = nullptr;
        QList<ICommand *> commands;
    };

    CActionContainer(const Core::CId &id, const QString &title);
    ~CActionContainer() override;

    const Core::CId &id() const;
    QMenu *menu() const;
    const QList<CGroup> &groups() const;

    /// Adds \a group at the end, unless it is there.
    void addGroup(const Core::CId &group);

    /// A command that the menu has already stays where it is.
    void addCommand(ICommand *command, const Core::CId &group) override;

    /// Forgets \a command; its action disappears from the menu.
    void removeCommand(const ICommand *command);

    /// Puts \a replacement in the place of \a action, if the menu has that.
    void replaceAction(QAction *action, QAction *replacement);

private:
    bool contains(const ICommand *command) const;
    int indexOf(const Core::CId &group) const;

    Core::CId m_id;
    QScopedPointer<QMenu> m_menu;
    QList<CGroup> m_groups;
};

} // namespace AppCore
} // namespace Plugin
