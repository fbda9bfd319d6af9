// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/PluginMetaData.h>

/// The metadata of an imaginary plug-in. \a versions is its version, or "<oldest>-<version>" where
/// it can stand in for older ones; \a dependencies are written as "<name> <version>".
inline PluginSystem::PluginMetaData testMetaData(const QString &name, const QString &versions,
                                                 const QStringList &dependencies = {})
{
    PluginSystem::PluginMetaData metaData;
    metaData.name = name;
    metaData.version = QVersionNumber::fromString(versions.section(QLatin1Char('-'), -1));
    metaData.compatVersion = QVersionNumber::fromString(versions.section(QLatin1Char('-'), 0, 0));
    for (const QString &dependency : dependencies) {
        const QStringList parts = dependency.split(QLatin1Char(' '));
        metaData.dependencies.append({parts.at(0), QVersionNumber::fromString(parts.at(1))});
    }
    return metaData;
}
