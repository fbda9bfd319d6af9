// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/FeatureFilesPlugin.h"

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "plugins/featurefiles/CFeatureFileEntries.h"
#include "plugins/nerixviewer/IMainWindowService.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/AppCore/IMenuService.h>

namespace FeatureFiles {

using Core::Plugin::findService;

CFeatureFilesPlugin::CFeatureFilesPlugin(QObject *parent)
    : IPlugin(parent)
{}

CFeatureFilesPlugin::~CFeatureFilesPlugin() = default;

bool CFeatureFilesPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    return true;
}

bool CFeatureFilesPlugin::initialize()
{
    const auto menus = findService<Plugin::AppCore::IMenuService>(m_initializer);
    CFeatureFileEntries::Services services;
    services.selection = findService<CameraSelector::IDeviceSelectionService>(m_initializer);
    services.control = findService<CameraPool::ICameraControlService>(m_initializer);
    services.status = findService<CameraPool::ICameraStatusService>(m_initializer);
    services.parameters = findService<ParameterCollectionPool::IParameterService>(m_initializer);
    services.messages = findService<Plugin::NerixViewer::IMessageService>(m_initializer);
    if (!menus || !services.parameters) {
        return false;
    }
    const auto window = findService<Plugin::NerixViewer::IMainWindowService>(m_initializer);
    services.hasWindows = !window.isNull();
    services.window = window ? window->window() : nullptr;
    m_entries = std::make_unique<CFeatureFileEntries>(*menus, services);
    return true;
}

bool CFeatureFilesPlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &)
{
    m_entries.reset();
    return true;
}

} // namespace FeatureFiles
