// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <NerixCoreExport.h>

#include <QtGlobal>

namespace Plugin {
namespace AppCore {

class ICommand;

/// A menu. Its commands stand in groups, separated from each other. Owned by the menu service. GUI
/// thread.
class NERIXCORE_EXPORT IActionContainer
{
public:
    IActionContainer() = default;
    virtual ~IActionContainer();

    Q_DISABLE_COPY_MOVE(IActionContainer)

    /// Adds \a command at the end of \a group. A group that the menu does not have yet is added
    /// after the others. A null command is ignored.
    virtual void addCommand(ICommand *command, const Core::CId &group) = 0;
};

} // namespace AppCore
} // namespace Plugin
