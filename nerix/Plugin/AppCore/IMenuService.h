// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/AppCoreComponents/CContext.h>
#include <Core/CId.h>
#include <NerixCoreExport.h>

#include <QObject>

class QAction;

namespace Plugin {
namespace AppCore {

class IActionContainer;
class ICommand;

/// The menus of the viewer and the actions in them. GUI thread.
class NERIXCORE_EXPORT IMenuService : public QObject
{
    Q_OBJECT

public:
    ~IMenuService() override;

    /// The menu \a id, for example "NerixViewer.Menu.Help"; null if there is none. Owned by the
    /// service.
    virtual IActionContainer *findActionContainer(const Core::CId &id) const = 0;

    /// Makes \a action known under \a id in \a context. The action stays its owner's; the command
    /// is the service's. An id that is taken gets its action replaced and keeps its command.
    /// @return the command; null if \a action is null or \a id is invalid.
    virtual ICommand *registerAction(QAction *action, const Core::CId &id,
                                     const Core::AppCoreComponents::CContext &context) = 0;

protected:
    explicit IMenuService(QObject *parent = nullptr);
};

} // namespace AppCore
} // namespace Plugin
