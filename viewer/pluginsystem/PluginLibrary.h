// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/CPluginSpec.h>

#include <memory>

namespace PluginSystem {

/// Reads the metadata of the shared library of \a spec, without loading it. Afterwards \a spec is
/// `Read`, or has an error: no library, no plug-in, one for another application, or metadata that
/// is not complete.
void readPluginLibrary(CPluginSpec &spec);

/// Loads the library \a path and creates its plug-in. All symbols are resolved now, so that a
/// library that does not fit is refused here instead of ending the viewer later. It is never
/// unloaded, because objects of its classes may be anywhere.
/// @return null, with the \a reason, if that is not possible.
/// @throws whatever leaves the plug-in's constructor.
std::unique_ptr<Core::Plugin::IPlugin> loadPluginLibrary(const QString &path, QString &reason);

} // namespace PluginSystem
