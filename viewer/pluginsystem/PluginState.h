// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace PluginSystem {
Q_NAMESPACE

/// How far a plug-in has come. Each state is reached from the one before it only. A plug-in that
/// has an error keeps the state in which it stopped.
enum class PluginState {
    Found,          ///< it is known that there is something
    Read,           ///< its metadata is there and complete
    Resolved,       ///< all that it depends on is there
    Loaded,         ///< its object is constructed
    PreInitialized, ///< `preInitialize` returned true
    Initialized,    ///< `initialize` returned true
    Running,        ///< it has been told `initializationDone`
    Uninitialized,  ///< `uninitialize` returned true
    Deleted         ///< its object is destroyed
};
Q_ENUM_NS(PluginState)

} // namespace PluginSystem
