// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/NerixWelcomePlugin.h"

#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CNerixWelcomeService.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IActionContainer.h>
#include <Plugin/AppCore/IMenuService.h>

#include <QAction>

namespace Plugin {
namespace NerixWelcome {

CNerixWelcomePlugin::CNerixWelcomePlugin(QObject *parent)
    : IPlugin(parent)
    , m_controller(QSharedPointer<CNerixWelcomeController>::create())
    , m_service(QSharedPointer<CNerixWelcomeService>::create(m_controller))
{}

CNerixWelcomePlugin::~CNerixWelcomePlugin() = default;

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
    return true;
}

bool CNerixWelcomePlugin::uninitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    delete m_showAction;
    m_showAction = nullptr;
    initializer->removeService(m_controller);
    initializer->removeService(m_service);
    return true;
}

void CNerixWelcomePlugin::addMenuEntry()
{
    using Core::AppCoreComponents::CContext;
    const auto menuService = Core::Plugin::findService<AppCore::IMenuService>(m_initializer);
    m_showAction = new QAction(tr("&Welcome Screen"), this);
    connect(m_showAction, &QAction::triggered, m_controller.data(), &CNerixWelcomeController::show);
    auto *command = menuService->registerAction(m_showAction, Core::CId("NerixWelcome.Action.Show"),
                                                CContext(Core::CId("AppCore.Global.Context")));
    menuService->findActionContainer(Core::CId("NerixViewer.Menu.View"))
        ->addCommand(command, Core::CId("NerixViewer.Group.View.Screens"));
}

} // namespace NerixWelcome
} // namespace Plugin
