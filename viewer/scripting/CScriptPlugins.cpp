// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptPlugins.h"

#include <pluginsystem/CPluginManager.h>

#include <QMetaEnum>
#include <QVariantMap>

namespace Scripting {

namespace {

QVariantMap describe(const PluginSystem::CPluginSpec &spec)
{
    const auto states = QMetaEnum::fromType<PluginSystem::PluginState>();
    const char *state = states.valueToKey(static_cast<int>(spec.state()));
    return {{QStringLiteral("name"), spec.name()},
            {QStringLiteral("version"), spec.metaData().version.toString()},
            {QStringLiteral("state"), QString::fromLatin1(state)},
            {QStringLiteral("error"), spec.error()},
            {QStringLiteral("builtIn"), spec.isBuiltIn()}};
}

} // namespace

CScriptPlugins::CScriptPlugins(const PluginSystem::CPluginManager &manager, QObject *parent)
    : QObject(parent)
    , m_manager(manager)
{}

QVariantList CScriptPlugins::list() const
{
    QVariantList descriptions;
    const auto plugins = m_manager.plugins();
    for (const PluginSystem::CPluginSpec *spec : plugins) {
        descriptions.append(describe(*spec));
    }
    return descriptions;
}

} // namespace Scripting
