// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/CPluginSpec.h>

#include <QStringList>
#include <QVector>

namespace PluginSystem {

/// The plug-in \a name: the one without an error if there are several, null if there is none.
CPluginSpec *findSpec(const QVector<CPluginSpec *> &specs, const QString &name);

/// A shortest way over dependencies from \a from to the plug-in \a to, as names, both ends
/// included; empty if there is none. From a plug-in to itself it is the cycle that it is part of.
QStringList dependencyPath(const CPluginSpec &from, const QString &to,
                           const QVector<CPluginSpec *> &specs);

} // namespace PluginSystem
