// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QList>
#include <QString>

class QMenu;

namespace Plugin {
namespace AppCore {

/// One registered action and where it stands.
struct CMenuEntry
{
    Core::CId id;
    QString text;    ///< without the mark of the mnemonic
    Core::CId menu;  ///< invalid for an action that is in no menu
    Core::CId group; ///< invalid likewise
    bool enabled = false;
};

/// What the viewer itself does with menus, beyond what it offers to plug-ins. GUI thread.
class IMenuControlService : public IMenuService
{
    Q_OBJECT

public:
    enum class TriggerResult {
        Triggered,
        Unknown,      ///< no action is registered under the id
        Disabled,     ///< the action is disabled
        NotApplicable ///< none of the action's contexts is active
    };

    /// Makes the menu \a id with the caption \a title, after the others. An id that is taken gives
    /// the menu that is there, with its caption; an invalid id gives null.
    virtual IActionContainer *createActionContainer(const Core::CId &id, const QString &title) = 0;

    /// Fixes the place of \a group in the menu \a menu: after the groups that it has already.
    /// Without this a group comes into being with its first command.
    virtual void addGroup(const Core::CId &menu, const Core::CId &group) = 0;

    /// The menus in the order in which they were made. Owned by the service.
    virtual QList<QMenu *> menus() const = 0;

    /// Every registered action: first menu by menu as a user sees them, then those in no menu. An
    /// action in two menus is there twice.
    virtual QList<CMenuEntry> entries() const = 0;

    /// Does what choosing the action in its menu does.
    virtual TriggerResult trigger(const Core::CId &id) = 0;

protected:
    using IMenuService::IMenuService;
};

} // namespace AppCore
} // namespace Plugin
