// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CameraSelectorPlugin.h"

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/cameraselector/CCameraCommands.h"
#include "plugins/cameraselector/CCameraListModel.h"
#include "plugins/cameraselector/CCameraPanel.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/nerixviewer/IMainWindowService.h"
#include "plugins/nerixviewer/IMessageService.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <CameraPool/ICameraStatusService.h>
#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

#include <chrono>

#include <QLoggingCategory>

namespace CameraSelector {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.cameraselector", QtInfoMsg)

// Another program that takes or leaves a camera is no news of the camera pool.
constexpr std::chrono::seconds refreshInterval(1);

} // namespace

CCameraSelectorPlugin::CCameraSelectorPlugin(QObject *parent)
    : IPlugin(parent)
    , m_service(QSharedPointer<CDeviceSelectionService>::create())
{
    m_refreshSoon.setSingleShot(true);
    connect(&m_refreshSoon, &QTimer::timeout, this, &CCameraSelectorPlugin::refresh);
}

CCameraSelectorPlugin::~CCameraSelectorPlugin() = default;

bool CCameraSelectorPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_service);
    return true;
}

bool CCameraSelectorPlugin::initialize()
{
    using CameraPool::ICameraEnumerationService;
    if (const auto search = Core::Plugin::findService<ICameraEnumerationService>(m_initializer)) {
        m_firstSearch = connect(search.data(), &ICameraEnumerationService::enumerationChanged, this,
                                &CCameraSelectorPlugin::onFirstSearchEnded);
    }
    addCommands();
    return true;
}

bool CCameraSelectorPlugin::uninitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_refreshTimer.stop();
    m_refreshSoon.stop();
    delete m_panel;
    m_model.reset();
    m_commands.reset();
    initializer->removeService(m_service);
    return true;
}

void CCameraSelectorPlugin::addCommands()
{
    const auto control =
        Core::Plugin::findService<CameraPool::ICameraControlService>(m_initializer);
    const auto menus = Core::Plugin::findService<Plugin::AppCore::IMenuService>(m_initializer);
    if (!control || !menus) {
        return;
    }
    m_commands = std::make_unique<CCameraCommands>(control, m_service);
    m_commands->addEntries(*menus);
    connect(control.data(), &CameraPool::ICameraControlService::openFailed, this,
            [this](const auto &, const QString &message) { showProblem(message); });
    connect(m_commands.get(), &CCameraCommands::leftAlone, this, &CCameraSelectorPlugin::hint);
    connectNews();
    addPanel();
}

void CCameraSelectorPlugin::addPanel()
{
    using Plugin::NerixViewer::IMainWindowService;
    const auto window = Core::Plugin::findService<IMainWindowService>(m_initializer);
    if (!window) {
        return;
    }
    m_model = std::make_unique<CCameraListModel>(
        Core::Plugin::findService<CameraPool::ICameraControlService>(m_initializer));
    m_panel = new CCameraPanel(*m_model, *m_commands, m_service);
    window->addPanel(QStringLiteral("CameraSelector.Cameras"), m_panel,
                     IMainWindowService::Side::Left);
    window->addToolBarAction(m_commands->openAction());
    window->addToolBarAction(m_commands->closeAction());
    connect(&m_refreshTimer, &QTimer::timeout, this, &CCameraSelectorPlugin::refresh);
    m_refreshTimer.start(refreshInterval);
}

void CCameraSelectorPlugin::connectNews()
{
    using CameraPool::ICameraControlService;
    using CameraPool::ICameraEnumerationService;
    using CameraPool::ICameraStatusService;
    const auto refreshOn = [this](const auto &service, auto... signal) {
        if (service) {
            (connect(service.data(), signal, this, &CCameraSelectorPlugin::refreshSoon), ...);
        }
    };
    refreshOn(Core::Plugin::findService<ICameraStatusService>(m_initializer),
              &ICameraStatusService::deviceOpened, &ICameraStatusService::deviceConnected,
              &ICameraStatusService::deviceDisconnected, &ICameraStatusService::cameraGrabStarted,
              &ICameraStatusService::cameraGrabStopped);
    refreshOn(Core::Plugin::findService<ICameraControlService>(m_initializer),
              &ICameraControlService::closed, &ICameraControlService::renamed);
    refreshOn(Core::Plugin::findService<ICameraEnumerationService>(m_initializer),
              &ICameraEnumerationService::enumerationChanged);
    if (const auto status = Core::Plugin::findService<ICameraStatusService>(m_initializer)) {
        connect(status.data(), &ICameraStatusService::deviceOpened, this,
                [this] { showProblem({}); });
    }
}

// Once for all news that are there: many cameras may come at once.
void CCameraSelectorPlugin::refreshSoon()
{
    if (!m_refreshSoon.isActive()) {
        m_refreshSoon.start(0);
    }
}

void CCameraSelectorPlugin::refresh()
{
    if (m_commands) {
        m_commands->update();
    }
    if (m_model) {
        m_model->refresh();
    }
}

// The message area has it from the log.
void CCameraSelectorPlugin::showProblem(const QString &message)
{
    if (m_panel) {
        m_panel->setProblem(message);
    }
}

void CCameraSelectorPlugin::hint(const QString &text)
{
    using Plugin::NerixViewer::IMessageService;
    if (const auto messages = Core::Plugin::findService<IMessageService>(m_initializer)) {
        messages->add(IMessageService::Severity::Information, text);
    }
}

void CCameraSelectorPlugin::onFirstSearchEnded()
{
    disconnect(m_firstSearch);
    const auto control =
        Core::Plugin::findService<CameraPool::ICameraControlService>(m_initializer);
    if (control && control->cameras().isEmpty()) {
        qCInfo(log) << "no camera found: plug one in, and check its power and that its address is "
                       "in a network of this computer; the viewer goes on looking";
    }
}

} // namespace CameraSelector
