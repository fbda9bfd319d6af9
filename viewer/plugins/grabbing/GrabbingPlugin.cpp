// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/GrabbingPlugin.h"

#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "plugins/grabbing/CFiguresBar.h"
#include "plugins/grabbing/CGrabController.h"
#include "plugins/grabbing/CGrabEntries.h"
#include "plugins/nerixviewer/IMainWindowService.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

namespace Grabbing {

using Core::Plugin::findService;
using Core::Plugin::IPluginInitializer;

CGrabbingPlugin::CGrabbingPlugin(QObject *parent)
    : IPlugin(parent)
{}

CGrabbingPlugin::~CGrabbingPlugin() = default;

bool CGrabbingPlugin::preInitialize(const QPointer<IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    return true;
}

bool CGrabbingPlugin::initialize()
{
    const CGrabController::Services services{
        findService<CameraPool::ICameraControlService>(m_initializer),
        findService<CameraPool::ICameraStatusService>(m_initializer),
        findService<CameraSelector::IDeviceSelectionService>(m_initializer)};
    const auto menus = findService<Plugin::AppCore::IMenuService>(m_initializer);
    if (!services.control || !services.status || !services.selection || !menus) {
        return false;
    }
    m_controller = std::make_unique<CGrabController>(services);
    m_entries = std::make_unique<CGrabEntries>(*menus, *m_controller);
    addToWindow();
    return true;
}

bool CGrabbingPlugin::uninitialize(const QPointer<IPluginInitializer> &)
{
    delete m_figures;
    m_entries.reset();
    m_controller.reset();
    return true;
}

void CGrabbingPlugin::addToWindow()
{
    const auto window = findService<Plugin::NerixViewer::IMainWindowService>(m_initializer);
    if (!window) {
        return;
    }
    const auto actions = m_entries->actions();
    for (QAction *action : actions) {
        window->addToolBarAction(action);
    }
    m_figures = new CFiguresBar(*m_controller);
    window->addStatusWidget(m_figures);
}

} // namespace Grabbing
