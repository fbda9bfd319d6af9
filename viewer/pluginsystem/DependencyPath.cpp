// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/DependencyPath.h>

#include <QHash>

namespace PluginSystem {

namespace {

/// Which plug-in each one was reached from, in a search by breadth.
using Origins = QHash<QString, QString>;

QStringList dependencyNames(const CPluginSpec &spec)
{
    QStringList names;
    const QVector<PluginDependency> &dependencies = spec.metaData().dependencies;
    for (const PluginDependency &dependency : dependencies) {
        names += dependency.name;
    }
    return names;
}

Origins search(const QString &from, const QVector<CPluginSpec *> &specs)
{
    Origins origins;
    QStringList open{from};
    while (!open.isEmpty()) {
        const QString current = open.takeFirst();
        const CPluginSpec *spec = findSpec(specs, current);
        const QStringList names = spec ? dependencyNames(*spec) : QStringList();
        for (const QString &name : names) {
            if (!origins.contains(name)) {
                origins.insert(name, current);
                open += name;
            }
        }
    }
    return origins;
}

} // namespace

CPluginSpec *findSpec(const QVector<CPluginSpec *> &specs, const QString &name)
{
    CPluginSpec *found = nullptr;
    for (CPluginSpec *spec : specs) {
        if (spec->name() == name && (!found || (found->hasError() && !spec->hasError()))) {
            found = spec;
        }
    }
    return found;
}

QStringList dependencyPath(const CPluginSpec &from, const QString &to,
                           const QVector<CPluginSpec *> &specs)
{
    const Origins origins = search(from.name(), specs);
    if (!origins.contains(to)) {
        return {};
    }
    QStringList path{to};
    do {
        path.prepend(origins.value(path.first()));
    } while (path.first() != from.name());
    return path;
}

} // namespace PluginSystem
