// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <NerixCoreExport.h>

#include <QtGlobal>

class QAction;

namespace Plugin {
namespace AppCore {

/// An action that is known to the viewer under an id. Made by `IMenuService::registerAction` and
/// owned by the menu service, which drops it when the action is destroyed. GUI thread.
class NERIXCORE_EXPORT ICommand
{
public:
    ICommand() = default;
    virtual ~ICommand();

    Q_DISABLE_COPY_MOVE(ICommand)

    virtual Core::CId id() const = 0;

    /// Owned by whoever registered it. Null once that action is destroyed.
    virtual QAction *action() const = 0;
};

} // namespace AppCore
} // namespace Plugin
