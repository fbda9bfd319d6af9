// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/Dependencies.h>
#include <pluginsystem/DependencyPath.h>

#include <algorithm>

namespace PluginSystem {

namespace {

QString wish(const CPluginSpec &spec, const PluginDependency &dependency)
{
    return QStringLiteral("Plug-in \"%1\" needs \"%2\" %3")
        .arg(spec.name(), dependency.name, dependency.version.toString());
}

QString missing(const CPluginSpec &spec, const PluginDependency &dependency)
{
    return QStringLiteral("%1, which is not there: install \"%2\", or %3")
        .arg(wish(spec, dependency), dependency.name, spec.remedy());
}

QString unfit(const CPluginSpec &spec, const PluginDependency &dependency,
              const PluginMetaData &found)
{
    const QVersionNumber &oldest =
        found.compatVersion.isNull() ? found.version : found.compatVersion;
    return QStringLiteral("%1, but there is \"%2\" %3, which can stand in for %4 to %3 only: "
                          "install a \"%2\" that fits, or %5")
        .arg(wish(spec, dependency), dependency.name, found.version.toString(), oldest.toString(),
             spec.remedy());
}

QString unusable(const CPluginSpec &spec, const PluginDependency &dependency,
                 const CPluginSpec &found)
{
    return QStringLiteral("%1, which has an error: %2")
        .arg(wish(spec, dependency), found.error().section(QLatin1Char('\n'), 0, 0));
}

/// Whether \a dependency leads back to \a spec, so that neither can be looked at before the other.
bool isPartOfCycle(const CPluginSpec &spec, const PluginDependency &dependency,
                   const QVector<CPluginSpec *> &specs)
{
    const CPluginSpec *found = findSpec(specs, dependency.name);
    return found && (found == &spec || !dependencyPath(*found, spec.name(), specs).isEmpty());
}

void checkCycle(CPluginSpec &spec, const QVector<CPluginSpec *> &specs)
{
    const QStringList path = dependencyPath(spec, spec.name(), specs);
    if (!path.isEmpty()) {
        spec.fail(QStringLiteral("Plug-in \"%1\" depends on itself (%2): %3")
                      .arg(spec.name(), path.join(QStringLiteral(" -> ")), spec.remedy()));
    }
}

void checkDependency(CPluginSpec &spec, const PluginDependency &dependency,
                     const QVector<CPluginSpec *> &specs)
{
    const CPluginSpec *found = findSpec(specs, dependency.name);
    if (!found) {
        spec.fail(missing(spec, dependency));
    } else if (found->hasError() && !isPartOfCycle(spec, dependency, specs)) {
        spec.fail(unusable(spec, dependency, *found));
    } else if (!found->metaData().provides(dependency.version)) {
        spec.fail(unfit(spec, dependency, found->metaData()));
    }
}

void checkDependencies(CPluginSpec &spec, const QVector<CPluginSpec *> &specs)
{
    checkCycle(spec, specs);
    const QVector<PluginDependency> &dependencies = spec.metaData().dependencies;
    for (const PluginDependency &dependency : dependencies) {
        checkDependency(spec, dependency, specs);
    }
}

/// Whether everything that \a spec depends on has been looked at.
bool isReady(const CPluginSpec &spec, const QVector<CPluginSpec *> &waiting,
             const QVector<CPluginSpec *> &specs)
{
    const QVector<PluginDependency> &dependencies = spec.metaData().dependencies;
    return std::none_of(
        dependencies.cbegin(), dependencies.cend(), [&](const PluginDependency &dependency) {
            return findSpec(waiting, dependency.name) && !isPartOfCycle(spec, dependency, specs);
        });
}

QVector<CPluginSpec *> readSpecsByName(const QVector<CPluginSpec *> &specs)
{
    QVector<CPluginSpec *> read;
    std::copy_if(specs.cbegin(), specs.cend(), std::back_inserter(read),
                 [](const CPluginSpec *spec) {
                     return spec->state() == PluginState::Read && !spec->hasError();
                 });
    std::sort(read.begin(), read.end(), [](const CPluginSpec *left, const CPluginSpec *right) {
        return left->name() < right->name();
    });
    return read;
}

} // namespace

QVector<CPluginSpec *> resolveDependencies(const QVector<CPluginSpec *> &specs)
{
    QVector<CPluginSpec *> resolved;
    QVector<CPluginSpec *> waiting = readSpecsByName(specs);
    while (!waiting.isEmpty()) {
        // There is always one, since ways around a cycle do not count.
        const auto next =
            std::find_if(waiting.begin(), waiting.end(),
                         [&](const CPluginSpec *spec) { return isReady(*spec, waiting, specs); });
        CPluginSpec *spec = *next;
        waiting.erase(next);
        checkDependencies(*spec, specs);
        if (spec->advance(PluginState::Resolved)) {
            resolved.append(spec);
        }
    }
    return resolved;
}

void failWithDependencies(CPluginSpec &spec, const QVector<CPluginSpec *> &specs)
{
    const QVector<PluginDependency> &dependencies = spec.metaData().dependencies;
    for (const PluginDependency &dependency : dependencies) {
        const CPluginSpec *found = findSpec(specs, dependency.name);
        if (found && found->hasError()) {
            spec.fail(unusable(spec, dependency, *found));
        }
    }
}

} // namespace PluginSystem
