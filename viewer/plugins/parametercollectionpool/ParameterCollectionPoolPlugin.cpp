// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "ParameterCollectionPoolPlugin.h"

#include "CParameterService.h"
#include "Logging.h"
#include "plugins/camerapool/IDeviceProvider.h"

#include <Core/Plugin/ServiceLookup.h>

namespace ParameterCollectionPool {

using Core::Plugin::IPluginInitializer;

CParameterCollectionPoolPlugin::CParameterCollectionPoolPlugin() = default;

CParameterCollectionPoolPlugin::~CParameterCollectionPoolPlugin() = default;

bool CParameterCollectionPoolPlugin::preInitialize(const QPointer<IPluginInitializer> &initializer)
{
    m_initializer = initializer;
    return true;
}

bool CParameterCollectionPoolPlugin::initialize()
{
    const auto devices =
        Core::Plugin::findService<CameraPool::IDeviceProvider>(m_initializer.data());
    if (!devices) {
        qCWarning(lcParameterCollectionPool,
                  "no parameters: the plug-in CameraPool is missing; install it");
        return false;
    }
    m_service = QSharedPointer<CParameterService>::create(devices);
    m_initializer->addService(m_service);
    return true;
}

bool CParameterCollectionPoolPlugin::uninitialize(const QPointer<IPluginInitializer> &initializer)
{
    if (initializer && m_service) {
        initializer->removeService(m_service);
    }
    m_service.reset();
    return true;
}

} // namespace ParameterCollectionPool
