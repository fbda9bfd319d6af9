// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace PluginSystem {
class CPluginManager;
}

namespace Application {

struct CommandLine;

/// Adds every plug-in that is part of the viewer to \a manager, which must outlive them. Before its
/// `start`.
void addBuiltInPlugins(PluginSystem::CPluginManager &manager, const CommandLine &commandLine);

} // namespace Application
