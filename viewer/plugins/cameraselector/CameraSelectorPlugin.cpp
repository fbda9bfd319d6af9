// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CameraSelectorPlugin.h"

#include "plugins/cameraselector/CDeviceSelectionService.h"

namespace CameraSelector {

CCameraSelectorPlugin::CCameraSelectorPlugin(QObject *parent)
    : IPlugin(parent)
    , m_service(QSharedPointer<CDeviceSelectionService>::create())
{}

CCameraSelectorPlugin::~CCameraSelectorPlugin() = default;

bool CCameraSelectorPlugin::preInitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->addService(m_service);
    return true;
}

bool CCameraSelectorPlugin::initialize()
{
    return true;
}

bool CCameraSelectorPlugin::uninitialize(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    initializer->removeService(m_service);
    return true;
}

} // namespace CameraSelector
