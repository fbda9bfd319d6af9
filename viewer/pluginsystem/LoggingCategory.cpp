// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/LoggingCategory.h>

namespace PluginSystem {

Q_LOGGING_CATEGORY(pluginSystem, "nerix.pluginsystem", QtInfoMsg)

} // namespace PluginSystem
