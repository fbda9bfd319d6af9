// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <pluginsystem/CHostedPlugin.h>
#include <pluginsystem/CPluginSpec.h>
#include <pluginsystem/CServiceRegistry.h>

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QStringList>
#include <QVector>

namespace PluginSystem {

/// Takes the plug-ins of the viewer through their life. GUI thread.
///
/// Use: `addBuiltIn` and `addFolder`, then `start`, then the event loop. To close: `canClose`; if
/// nobody objects, close the devices while the plug-ins still listen; then `shutDown`.
///
/// No plug-in ends the viewer. What goes wrong becomes that plug-in's error and a line of `errors`,
/// and the others go on, except those that depend on it: a plug-in is loaded, pre-initialised and
/// initialised only while all that it depends on is without error. This holds for a dependency
/// whose `initialize` fails, too: a dependent is not initialised then, since it may rely on
/// everything that it depends on being initialised. A plug-in whose `initialize` was called is
/// uninitialised in any case, one whose `initialize` was not called never is.
class CPluginManager : public QObject
{
    Q_OBJECT

public:
    explicit CPluginManager(QObject *parent = nullptr);

    /// Shuts down if that was not done yet.
    ~CPluginManager() override;

    /// Adds a plug-in that is part of the viewer. Before `start`.
    void addBuiltIn(const PluginMetaData &metaData, PluginFactory factory);

    /// Adds every shared library in \a folder, by file name, but not in the folders in it. Before
    /// `start`.
    void addFolder(const QString &folder);

    /// The language of plug-ins that bring translations, for example "zh_CN". Before `start` it is
    /// kept and set once a plug-in is loaded, so that `preInitialize` can make translated texts;
    /// afterwards it is set at once.
    void setLanguage(const QString &language);

    /// Called in the GUI thread before each operation of a plug-in that belongs to the end of the
    /// viewer, so that somebody can tell what hangs.
    using EndListener = std::function<void(const CHostedPlugin &plugin, const char *operation)>;
    void setEndListener(EndListener listener);

    /// The plug-ins in libraries that are still to be uninitialised.
    QStringList librariesAtWork() const;

    /// Resolves, loads, pre-initialises and initialises the plug-ins, each step for all of them
    /// before the next one, what is depended on first, else by name. When the event loop runs,
    /// every plug-in and then `registry` emits `initializationDone`. Once.
    void start();

    /// Asks every running plug-in, dependents first, whether the viewer may be closed, also after
    /// the first that objects, so that the user reads all reasons at once.
    /// @return whether none objects; \a vetoes receives a line for each that does. Nothing is
    /// logged, since the caller knows whether this is the first time.
    bool canClose(QStringList *vetoes = nullptr);

    /// Tells all plug-ins and uninitialises them, as `shutDown` does, but leaves their objects.
    /// Callable again where it was cut short: each plug-in is uninitialised once.
    void uninitialize();

    /// Ends the plug-ins, dependents first: tells all of them, uninitialises all of them while the
    /// services are still there, then destroys them, each one's services just before it. Once; a
    /// viewer that was never started has nothing to end. Does not ask `canClose`.
    void shutDown();

    /// The services; lives as long as the manager, and holds none after `shutDown`.
    CServiceRegistry &registry();

    /// Every plug-in that was found, usable or not: built-in ones first, in the order in which they
    /// were added. Valid as long as the manager lives.
    QVector<const CPluginSpec *> plugins() const;

    /// Null if there is none with that name.
    const CPluginSpec *plugin(const QString &name) const;

    /// All that went wrong so far, a line each, folders included; every line was logged.
    QStringList errors() const;

private:
    void add(std::unique_ptr<CHostedPlugin> plugin);
    void resolve();
    void forEachUsable(void (CHostedPlugin::*step)());
    template <class Step>
    void forEachDependentFirst(Step step);
    void atTheEnd(const char *operation, void (CHostedPlugin::*step)());
    void finishStart();

    CServiceRegistry m_registry;
    std::vector<std::unique_ptr<CHostedPlugin>> m_plugins;
    /// The plug-ins that are resolved, what is depended on first.
    std::vector<CHostedPlugin *> m_order;
    QStringList m_folders;
    QStringList m_folderErrors;
    QString m_language;
    EndListener m_endListener = [](const CHostedPlugin &, const char *) {};
    bool m_isStarted = false;
    bool m_isTold = false;
    bool m_isShutDown = false;
};

} // namespace PluginSystem
