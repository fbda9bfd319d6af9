// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CUsageTrackingProvider.h"

#include <Core/Plugin/ServiceLookup.h>

namespace Plugin::UsageTracking::Internal {

using Core::Plugin::findService;
using Core::Plugin::findServices;

CUsageTrackingProvider::CUsageTrackingProvider() = default;

CUsageTrackingProvider::~CUsageTrackingProvider() = default;

bool CUsageTrackingProvider::acquireServices(
    const QPointer<Core::Plugin::IPluginInitializer> &initializer)
{
    m_featureTreeServices = findServices<FeatureTree::IFeatureTreeStatusService>(initializer);
    m_deviceSelectorService = findService<CameraSelector::IDeviceSelectorService>(initializer);
    m_cameraStatusService = findService<CameraPool::ICameraStatusService>(initializer);
    m_enumerationService = findService<CameraPool::ICameraEnumerationService>(initializer);
    m_parameterService = findService<ParameterCollectionPool::IParameterService>(initializer);
    return m_deviceSelectorService && m_cameraStatusService && m_enumerationService
           && m_parameterService;
}

CUsageTrackingProvider::ParameterCollectionPtr
CUsageTrackingProvider::parametersOf(const DeviceBaseInfoPtr &device) const
{
    return m_parameterService ? m_parameterService->parameterCollection(device)
                              : ParameterCollectionPtr();
}

} // namespace Plugin::UsageTracking::Internal
