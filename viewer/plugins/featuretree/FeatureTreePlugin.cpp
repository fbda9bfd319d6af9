// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/FeatureTreePlugin.h"

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "plugins/featuretree/CFeaturePanel.h"
#include "plugins/featuretree/CFeatureSelectionService.h"
#include "plugins/nerixviewer/IMainWindowService.h"
#include "plugins/nerixviewer/IMessageService.h"

#include <CameraPool/ICameraStatusService.h>
#include <Core/Plugin/ServiceLookup.h>
#include <ParameterCollectionPool/IParameterService.h>

namespace FeatureTree {

CFeatureTreePlugin::CFeatureTreePlugin(QObject *parent)
    : IPlugin(parent)
    , m_service(QSharedPointer<CFeatureSelectionService>::create())
{}

CFeatureTreePlugin::~CFeatureTreePlugin() = default;

bool CFeatureTreePlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    initializer->addService(m_service);
    return true;
}

bool CFeatureTreePlugin::initialize()
{
    using Plugin::NerixViewer::IMainWindowService;
    if (const auto window = Core::Plugin::findService<IMainWindowService>(m_initializer)) {
        m_panel = new CFeaturePanel(findServices());
        window->addPanel(QStringLiteral("FeatureTree.Features"), m_panel,
                         IMainWindowService::Side::Right);
    }
    return true;
}

CFeatureServices CFeatureTreePlugin::findServices() const
{
    using Core::Plugin::findService;
    CFeatureServices services;
    services.deviceSelection = findService<CameraSelector::IDeviceSelectionService>(m_initializer);
    services.control = findService<CameraPool::ICameraControlService>(m_initializer);
    services.status = findService<CameraPool::ICameraStatusService>(m_initializer);
    services.parameters = findService<ParameterCollectionPool::IParameterService>(m_initializer);
    services.featureSelection = m_service;
    services.messages = findService<Plugin::NerixViewer::IMessageService>(m_initializer);
    return services;
}

bool CFeatureTreePlugin::uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    delete m_panel;
    initializer->removeService(m_service);
    return true;
}

} // namespace FeatureTree
