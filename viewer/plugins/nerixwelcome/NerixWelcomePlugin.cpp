// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/NerixWelcomePlugin.h"

#include "plugins/help/IHelpViewService.h"
#include "plugins/nerixviewer/IMainWindowService.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CNerixWelcomeService.h"
#include "plugins/nerixwelcome/CWelcomeWindow.h"
#include "windows/MenuEntry.h"
#include "windows/MessageBox.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

#include <chrono>

#include <QAction>
#include <QTimer>

namespace Plugin {
namespace NerixWelcome {

namespace {

// Without any time it would be one of the events of the start itself.
constexpr std::chrono::milliseconds afterTheStart(1);

// The page on which the plug-in that tracks asks for consent, by the id that it gives it.
constexpr char consentTab[] = "UsageTracking.NerixWelcome.DataPrivacy";

} // namespace

CNerixWelcomePlugin::CNerixWelcomePlugin(Policy::CUsagePolicy policy, QObject *parent)
    : IPlugin(parent)
    , m_policy(policy)
    , m_controller(QSharedPointer<CNerixWelcomeController>::create())
    , m_service(QSharedPointer<CNerixWelcomeService>::create(m_controller))
{
    if (m_policy.isOff()) {
        m_service->withhold(Core::CId(consentTab));
        connect(m_service.data(), &CNerixWelcomeService::withheldTabWanted, this,
                &CNerixWelcomePlugin::tellPolicy);
    }
}

CNerixWelcomePlugin::~CNerixWelcomePlugin()
{
    delete m_window;
}

bool CNerixWelcomePlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_service);
    initializer->addService(m_controller);
    connect(initializer, &Core::Plugin::IPluginInitializer::initializationDone, m_controller.data(),
            &CNerixWelcomeController::start);
    return true;
}

bool CNerixWelcomePlugin::initialize()
{
    addMenuEntry();
    addWindow();
    return true;
}

bool CNerixWelcomePlugin::uninitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    delete m_window;
    delete m_showAction;
    m_showAction = nullptr;
    initializer->removeService(m_controller);
    initializer->removeService(m_service);
    return true;
}

void CNerixWelcomePlugin::addMenuEntry()
{
    const auto menus = Core::Plugin::findService<AppCore::IMenuService>(m_initializer);
    m_showAction = Windows::addMenuEntry(
        *menus,
        {"NerixWelcome.Action.Show", "NerixViewer.Menu.View", "NerixViewer.Group.View.Screens"},
        [] { return tr("&Welcome Screen"); }, this);
    connect(m_showAction, &QAction::triggered, m_controller.data(), &CNerixWelcomeController::show);
    const auto update = [this] { m_showAction->setEnabled(!m_controller->tabs().isEmpty()); };
    connect(m_controller.data(), &CNerixWelcomeController::tabsChanged, m_showAction, update);
    update();
}

void CNerixWelcomePlugin::tellPolicy()
{
    const auto windows = Core::Plugin::findService<NerixViewer::IMainWindowService>(m_initializer);
    if (windows) {
        Windows::newMessageBox(QMessageBox::Information, tr("Data Privacy"), m_policy.text(),
                               QMessageBox::Ok, windows->window())
            ->open();
    }
}

void CNerixWelcomePlugin::addWindow()
{
    const auto windows = Core::Plugin::findService<NerixViewer::IMainWindowService>(m_initializer);
    if (!windows) {
        return;
    }
    // Weak, because a timer that is never over keeps what it was given longer than the application.
    const auto make = [this, weak = windows.toWeakRef()] {
        const auto service = weak.toStrongRef();
        if (!service) {
            return;
        }
        m_window = new CWelcomeWindow(*m_controller, service->window());
        if (const auto help = Core::Plugin::findService<Help::IHelpViewService>(m_initializer)) {
            using Help::IHelpViewService;
            connect(help.data(), &IHelpViewService::failed, m_window, &CWelcomeWindow::showProblem);
            connect(help.data(), &IHelpViewService::shown, m_window, &CWelcomeWindow::dropProblem);
        }
    };
    // The main window, and a script, need not wait for a page to be loaded. The timer is set by an
    // event of its own, which comes with the one that runs the script: on a busy machine a timer
    // that is set at once can be over before that.
    connect(
        m_initializer, &Core::Plugin::IPluginInitializer::initializationDone, this,
        [this, make] { QTimer::singleShot(afterTheStart, this, make); }, Qt::QueuedConnection);
}

} // namespace NerixWelcome
} // namespace Plugin
