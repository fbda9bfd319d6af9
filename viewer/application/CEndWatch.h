// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "application/CEndGuard.h"

namespace PluginSystem {
class CHostedPlugin;
class CPluginManager;
} // namespace PluginSystem

namespace Application {

/// Tells the guard of the viewer's end which step is under way, in words for the log and for the
/// user. GUI thread, where not said otherwise.
class CEndWatch
{
public:
    /// \a plugins must outlive this. Without windows a line in the log stands for the question.
    CEndWatch(PluginSystem::CPluginManager &plugins, bool hasWindows);
    ~CEndWatch();

    Q_DISABLE_COPY_MOVE(CEndWatch)

    /// The viewer works, and is not to end.
    void rest();

    /// The same, but \a script runs, which a request ends first.
    void restWhile(const QString &script);

    /// The cameras are closed next.
    void expectCameras();

    /// All that is left is the viewer's own.
    void expectRest();

    /// Callable in any thread.
    CEndGuard &guard();

private:
    void expect(const PluginSystem::CHostedPlugin &plugin, const char *operation);
    EndStep step(const QString &line, const QString &shown, const QString &besides = {}) const;

    PluginSystem::CPluginManager &m_plugins;
    bool m_hasWindows;
    CEndGuard m_guard;
};

} // namespace Application
