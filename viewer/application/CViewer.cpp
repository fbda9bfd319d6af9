// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CViewer.h"

#include "application/BuiltInPlugins.h"
#include "application/DeviceClosing.h"
#include "application/Folders.h"
#include "plugins/nerixviewer/IApplicationService.h"
#include "scripting/CScriptRunner.h"
#include "windows/MessageBox.h"
#include "windows/ShownText.h"

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/FailedDestructor.h>

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

// This one does not wait for what hangs.
constexpr int endingSignals = 3;

} // namespace

CViewer::CViewer(const CommandLine &commandLine, QObject *parent)
    : QObject(parent)
    , m_commandLine(commandLine)
    , m_endWatch(m_plugins, commandLine.showsWindows)
{
    connect(&m_plugins.registry(), &Core::Plugin::IPluginInitializer::initializationDone, this,
            &CViewer::onPluginsInitialized);
    m_askAgain.setSingleShot(true);
    m_askAgain.setInterval(askAgainAfter);
    connect(&m_askAgain, &QTimer::timeout, this, &CViewer::closeApplication);
    if (!m_commandLine.scriptFile.isEmpty()) {
        m_script = std::make_unique<Scripting::CScriptRunner>(m_plugins);
        m_script->setOverrunHandler([this] {
            m_endWatch.guard().request();
            m_endWatch.guard().insistOnStep();
        });
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
    m_endWatch.expectCameras();
    closeDevices(m_plugins.registry(), Waiting::WithEvents,
                 [this] { return m_endWatch.guard().isInsistedOn(); });
    m_plugins.uninitialize();
    if (m_settingsCheck) {
        tellUnkept(m_settingsCheck->problem());
        m_settingsCheck.reset();
    }
    PluginSystem::setStatusAfterFailedDestructor(m_status);
    m_plugins.shutDown();
    m_endWatch.expectRest();
}

// In words that wait for an answer only where somebody is there to give one.
void CViewer::tellUnkept(const QString &problem)
{
    if (problem.isEmpty()) {
        return;
    }
    qCWarning(log).noquote() << problem;
    if (m_commandLine.showsWindows && !m_script && m_signalCount == 0) {
        m_endWatch.rest();
        Windows::newMessageBox(QMessageBox::Warning, tr("Nerix Viewer"), problem,
                               QMessageBox::Close, nullptr)
            ->exec();
    }
}

void CViewer::shutDownWithoutDisplay()
{
    qCWarning(log) << "the display is gone: the viewer ends";
    if (!std::exchange(m_isShuttingDown, true)) {
        keepLayout();
    }
    m_endWatch.expectCameras();
    closeDevices(m_plugins.registry(), Waiting::WithoutEventLoop,
                 [this] { return m_endWatch.guard().isInsistedOn(); });
    m_plugins.uninitialize();
}

void CViewer::keepLayout()
{
    using Plugin::NerixViewer::IApplicationService;
    if (const auto service =
            Core::Plugin::findService<IApplicationService>(&m_plugins.registry())) {
        Q_EMIT service->layoutIsToBeKept();
    }
}

void CViewer::requestQuit()
{
    m_toldObjections.clear();
    quit();
}

void CViewer::quitBySignal()
{
    const int count = ++m_signalCount;
    m_endWatch.guard().request();
    if (m_script) {
        m_script->interrupt();
    }
    if (count >= endingSignals) {
        m_endWatch.guard().insist();
    } else if (count >= insistingSignals && m_script && m_script->isRunning()) {
        m_endWatch.guard().insistOnStep();
    }
    QMetaObject::invokeMethod(this, &CViewer::quit, Qt::QueuedConnection);
}

void CViewer::quitBySession()
{
    m_signalCount = qMax(m_signalCount.load(), insistingSignals - 1);
    quitBySignal();
}

bool CViewer::agreesToEndOfSession()
{
    keepLayout();
    QStringList objections;
    const bool agrees = !m_isReady || m_plugins.canClose(&objections);
    m_endWatch.rest();
    tell(objections);
    return agrees;
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
    m_settingsCheck = std::make_unique<CSettingsCheck>();
    m_isReady = true;
    if (m_signalCount == 0) {
        m_endWatch.rest();
    }
    if (m_script) {
        QMetaObject::invokeMethod(this, &CViewer::runScript, Qt::QueuedConnection);
    } else if (m_signalCount > 0) {
        QMetaObject::invokeMethod(this, &CViewer::quit, Qt::QueuedConnection);
    }
}

void CViewer::runScript()
{
    m_endWatch.restWhile(m_commandLine.scriptFile);
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
        m_endWatch.expectRest();
        m_settingsCheck->translate();
        QCoreApplication::exit(m_status);
        return;
    }
    m_endWatch.rest();
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
