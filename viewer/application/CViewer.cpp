// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CViewer.h"

#include "application/BuiltInPlugins.h"
#include "application/DeviceClosing.h"
#include "application/Folders.h"
#include "plugins/nerixviewer/IApplicationService.h"
#include "scripting/CScriptRunner.h"
#include "windows/ShownText.h"

#include <Core/Plugin/ServiceLookup.h>

#include <chrono>
#include <cstdio>
#include <utility>

#include <QCoreApplication>
#include <QLoggingCategory>

namespace Application {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.application", QtInfoMsg)

// A plug-in that objects at the end of a script, where nobody is there to try again, is asked again
// after this time.
constexpr std::chrono::milliseconds askAgainAfter(500);

constexpr int scriptFailed = 1;

// The first signal asks the plug-ins, this one does not.
constexpr int insistingSignals = 2;

} // namespace

CViewer::CViewer(const CommandLine &commandLine, QObject *parent)
    : QObject(parent)
    , m_commandLine(commandLine)
{
    connect(&m_plugins.registry(), &Core::Plugin::IPluginInitializer::initializationDone, this,
            &CViewer::onPluginsInitialized);
    m_askAgain.setSingleShot(true);
    m_askAgain.setInterval(askAgainAfter);
    connect(&m_askAgain, &QTimer::timeout, this, &CViewer::closeApplication);
    if (!m_commandLine.scriptFile.isEmpty()) {
        m_script = std::make_unique<Scripting::CScriptRunner>(m_plugins);
    }
}

CViewer::~CViewer()
{
    shutDown();
}

void CViewer::start()
{
    addBuiltInPlugins(m_plugins, m_commandLine);
    addPluginFolders();
    m_plugins.start();
}

void CViewer::shutDown()
{
    m_isShuttingDown = true;
    closeDevices(m_plugins.registry());
    m_plugins.shutDown();
}

void CViewer::requestQuit()
{
    m_toldObjections.clear();
    quit();
}

void CViewer::quitBySignal()
{
    ++m_signalCount;
    if (m_script) {
        m_script->interrupt();
    }
    QMetaObject::invokeMethod(this, &CViewer::quit, Qt::QueuedConnection);
}

PluginSystem::CPluginManager &CViewer::plugins()
{
    return m_plugins;
}

void CViewer::addPluginFolders()
{
    QStringList folders = m_commandLine.pluginFolders;
    if (folders.isEmpty()) {
        folders.append(pluginFolder());
    }
    for (const QString &folder : qAsConst(folders)) {
        const int before = m_plugins.plugins().size() + m_plugins.errors().size();
        m_plugins.addFolder(folder);
        if (before == m_plugins.plugins().size() + m_plugins.errors().size()) {
            qCInfo(log).noquote() << "no plug-in in folder" << folder;
        }
    }
}

void CViewer::onPluginsInitialized()
{
    const auto application =
        Core::Plugin::findService<Plugin::NerixViewer::IApplicationService>(&m_plugins.registry());
    if (application) {
        connect(application.data(), &Plugin::NerixViewer::IApplicationService::quitRequested, this,
                &CViewer::requestQuit);
    }
    m_isReady = true;
    if (m_script) {
        QMetaObject::invokeMethod(this, &CViewer::runScript, Qt::QueuedConnection);
    } else if (m_signalCount > 0) {
        QMetaObject::invokeMethod(this, &CViewer::quit, Qt::QueuedConnection);
    }
}

void CViewer::runScript()
{
    const QString failure = m_script->run(m_commandLine.scriptFile);
    if (!failure.isEmpty()) {
        const QString shown = Windows::shownText(failure, failure.size());
        std::fputs((shown + QLatin1Char('\n')).toUtf8().constData(), stderr);
        m_status = scriptFailed;
    }
    closeApplication();
}

// Plug-ins that are not ready cannot be ended in order: a signal that comes earlier is heeded then.
void CViewer::quit()
{
    if (m_isShuttingDown || !m_isReady) {
        return;
    }
    if (m_script && m_script->isRunning()) {
        m_script->quit();
    } else {
        closeApplication();
    }
}

void CViewer::closeApplication()
{
    QStringList objections;
    if (m_signalCount >= insistingSignals || m_plugins.canClose(&objections)) {
        m_askAgain.stop();
        QCoreApplication::exit(m_status);
        return;
    }
    tell(objections);
    if (m_script) {
        m_askAgain.start();
    }
}

// Each once, however often the plug-ins are asked again.
void CViewer::tell(const QStringList &objections)
{
    for (const QString &objection : objections) {
        if (!m_toldObjections.contains(objection)) {
            qCInfo(log).noquote() << objection;
        }
    }
    m_toldObjections = objections;
    const int signalCount = m_signalCount;
    if (std::exchange(m_toldSignals, signalCount) < signalCount) {
        qCInfo(log) << "the signal was heeded but a plug-in objects; send it again to insist";
    }
}

} // namespace Application
