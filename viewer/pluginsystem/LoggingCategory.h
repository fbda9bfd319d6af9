// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QLoggingCategory>

namespace PluginSystem {

/// "nerix.pluginsystem": every change of a plug-in's state is a debug line, which
/// QT_LOGGING_RULES="nerix.pluginsystem.debug=true" shows; every error is a warning, or critical
/// where the plug-in is required.
Q_DECLARE_LOGGING_CATEGORY(pluginSystem)

} // namespace PluginSystem
