// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVariantList>

namespace PluginSystem {
class CPluginManager;
}

namespace Scripting {

/// `plugins`: the plug-ins of the viewer. GUI thread.
class CScriptPlugins : public QObject
{
    Q_OBJECT

public:
    /// \a manager must outlive the object.
    CScriptPlugins(const PluginSystem::CPluginManager &manager, QObject *parent);

    /// Every plug-in that was found: "name", "version", "state" (as in the log, for example
    /// "Running"), "error" (lines; empty if there is none) and "builtIn".
    Q_INVOKABLE QVariantList list() const;

private:
    const PluginSystem::CPluginManager &m_manager;
};

} // namespace Scripting
