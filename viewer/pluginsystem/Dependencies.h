// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/CPluginSpec.h>

#include <QVector>

namespace PluginSystem {

/// Takes every plug-in of \a specs that is `Read` to `Resolved`, or gives it an error: one line for
/// the cycle that it is part of, with its path, and one for each dependency that is not there, is
/// there in a version that does not fit, or has an error itself.
/// @return the resolved ones, what is depended on before what depends on it; where that leaves a
/// choice, by name.
QVector<CPluginSpec *> resolveDependencies(const QVector<CPluginSpec *> &specs);

/// Gives \a spec an error for each of its dependencies among \a specs that has one.
void failWithDependencies(CPluginSpec &spec, const QVector<CPluginSpec *> &specs);

} // namespace PluginSystem
