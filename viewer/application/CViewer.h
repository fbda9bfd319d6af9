// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "application/CEndWatch.h"
#include "application/CommandLine.h"
#include "application/CSettingsCheck.h"

#include <pluginsystem/CPluginManager.h>

#include <atomic>
#include <memory>

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace Scripting {
class CScriptRunner;
}

namespace Application {

/// The viewer from its first plug-in to its last. GUI thread, where not said otherwise.
///
/// `start`, then the application's event loop, then `shutDown`. With a script on the command line
/// the script begins once every plug-in is initialised, and its end closes the viewer.
class CViewer : public QObject
{
    Q_OBJECT

public:
    explicit CViewer(const CommandLine &commandLine, QObject *parent = nullptr);

    /// Shuts down if that was not done yet.
    ~CViewer() override;

    void start();

    /// Closes the devices while the plug-ins still listen, then ends the plug-ins. Runs an event
    /// loop meanwhile. Settings that could not be kept are told, in a window if the user has closed
    /// the viewer.
    void shutDown();

    /// Ends the script if one runs, then the event loop, unless a plug-in objects: the log then
    /// says which and why, once a request. After a script, which nobody watches, the plug-ins are
    /// asked again without words until none objects.
    void requestQuit();

    /// Callable in any thread: as `requestQuit`, but a script that runs has failed. The second call
    /// closes the viewer whatever the plug-ins say, and ends a script that does not heed it; the
    /// third ends the viewer without waiting for what hangs.
    void quitBySignal();

    /// The session of the desktop ends, which nobody can object to any more: as two signals.
    void quitBySession();

    /// Whether the plug-ins agree to an end of the desktop's session; else the log says which do
    /// not. Keeps the layout of the windows in either case.
    bool agreesToEndOfSession();

    /// As `shutDown` where no event loop may run any more, since the display is gone.
    void shutDownWithoutDisplay();

    PluginSystem::CPluginManager &plugins();

private:
    void addPluginFolders();
    void onPluginsInitialized();
    void runScript();
    void quit();
    void closeApplication();
    void tell(const QStringList &objections);
    void keepLayout();
    void tellUnkept(const QString &problem);

    CommandLine m_commandLine;
    PluginSystem::CPluginManager m_plugins;
    CEndWatch m_endWatch;
    std::unique_ptr<Scripting::CScriptRunner> m_script;
    std::unique_ptr<CSettingsCheck> m_settingsCheck; // once the plug-ins are initialised
    std::atomic<int> m_signalCount{0};
    int m_toldSignals = 0;
    QStringList m_toldObjections;
    QTimer m_askAgain;
    int m_status = 0;
    bool m_isReady = false;
    bool m_isShuttingDown = false;
};

} // namespace Application
