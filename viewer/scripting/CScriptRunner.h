// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptWait.h"

#include <atomic>
#include <functional>

#include <QJSEngine>
#include <QObject>
#include <QString>

namespace PluginSystem {
class CPluginManager;
}

namespace Scripting {

/// Runs one script against the objects of the viewer. GUI thread, where not said otherwise.
///
/// The script is plain sequential JavaScript; docs/scripting.md describes what it can use.
class CScriptRunner : public QObject
{
    Q_OBJECT

public:
    using Printer = std::function<void(const QString &line)>;

    /// \a plugins must outlive the object.
    explicit CScriptRunner(PluginSystem::CPluginManager &plugins, QObject *parent = nullptr);
    ~CScriptRunner() override;

    /// Callable in any thread.
    bool isRunning() const;

    /// Takes what the script prints, line by line, instead of standard output. Before `run`.
    void setPrinter(Printer printer);

    /// How much memory a script may take, in bytes. Before `run`.
    void setMemoryLimit(qint64 limit);

    /// Called in a thread of its own when a script has taken more than that and is to end: a single
    /// operation of the engine may not heed it. Before `run`.
    void setOverrunHandler(std::function<void()> handler);

    /// Runs the script in \a file and returns when it has ended; while the script waits, an event
    /// loop runs. Once.
    /// @return what made the script fail, as a line "FILE:LINE: message"; empty if it did not.
    QString run(const QString &file);

    /// Ends the script, which has done its work: it fails no more, wherever it is.
    void quit();

    /// Ends the script before its work is done, which is a failure. Callable in any thread.
    void interrupt();

private:
    enum class Ending { None, Quit, Interrupted, OutOfMemory };

    void addHost();
    void addObjects();
    void addObject(const char *name, QObject *object);
    void evaluateResource(const char *fileName);
    void end(Ending ending);
    QString evaluate(const QString &file);
    QString failureOf(const QString &file, const QJSValue &result) const;

    PluginSystem::CPluginManager &m_plugins;
    QJSEngine m_engine;
    CScriptWait m_wait;
    Printer m_printer;
    qint64 m_memoryLimit;
    std::function<void()> m_overrunHandler = [] {};
    std::atomic<Ending> m_ending{Ending::None};
    std::atomic<bool> m_isRunning{false};
    bool m_hasReachedEnd = false;
};

} // namespace Scripting
