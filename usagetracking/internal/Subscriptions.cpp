// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the provider listens to while a session is open.

#include "CUsageTrackingProvider.h"

namespace Plugin {
namespace UsageTracking {
namespace Internal {

using CameraPool::ICameraEnumerationService;
using CameraPool::ICameraStatusService;
using CameraPool::IDeviceStatusService;
using CameraSelector::IDeviceSelectorService;
using FeatureTree::IFeatureTreeStatusService;
using Provider = CUsageTrackingProvider;

void CUsageTrackingProvider::subscribe()
{
    for (const auto &featureTree : qAsConst(m_featureTreeServices)) {
        connect(featureTree.data(), &IFeatureTreeStatusService::currentChanged, this,
                &Provider::onParameterSelectionChanged);
    }
    connect(m_deviceSelectorService.data(), &IDeviceSelectorService::selectionChanged, this,
            &Provider::onDeviceSelectionChanged);

    const ICameraStatusService *cameras = m_cameraStatusService.data();
    connect(cameras, &ICameraStatusService::deviceConnected, this, &Provider::onCameraConnected);
    connect(cameras, &ICameraStatusService::deviceDisconnected, this,
            &Provider::onCameraDisconnected);
    connect(m_enumerationService.data(), &ICameraEnumerationService::enumerationChanged, this,
            &Provider::onEnumerationChanged);
    connect(cameras, &IDeviceStatusService::deviceOpened, this, &Provider::onDeviceOpened);
    // The device is closed when this slot has returned, so that it can still be read.
    connect(cameras, &IDeviceStatusService::deviceClosing, this, &Provider::onDeviceClosing,
            Qt::BlockingQueuedConnection);
    connect(cameras, &ICameraStatusService::cameraGrabStarted, this,
            &Provider::onCameraGrabStarted);
    connect(cameras, &ICameraStatusService::cameraGrabStopped, this,
            &Provider::onCameraGrabStopped);
    connect(cameras, &ICameraStatusService::cameraImageGrabbed, this,
            &Provider::onCameraImageGrabFailed);
    connect(cameras, &ICameraStatusService::cameraStatisticUpdated, this,
            &Provider::onCameraStatisticUpdated);
}

void CUsageTrackingProvider::unsubscribe()
{
    for (const auto &featureTree : qAsConst(m_featureTreeServices)) {
        disconnect(featureTree.data(), &IFeatureTreeStatusService::currentChanged, this,
                   &Provider::onParameterSelectionChanged);
    }
    disconnect(m_deviceSelectorService.data(), &IDeviceSelectorService::selectionChanged, this,
               &Provider::onDeviceSelectionChanged);

    const ICameraStatusService *cameras = m_cameraStatusService.data();
    disconnect(cameras, &ICameraStatusService::deviceConnected, this, &Provider::onCameraConnected);
    disconnect(cameras, &ICameraStatusService::deviceDisconnected, this,
               &Provider::onCameraDisconnected);
    disconnect(m_enumerationService.data(), &ICameraEnumerationService::enumerationChanged, this,
               &Provider::onEnumerationChanged);
    disconnect(cameras, &IDeviceStatusService::deviceOpened, this, &Provider::onDeviceOpened);
    disconnect(cameras, &IDeviceStatusService::deviceClosing, this, &Provider::onDeviceClosing);
    disconnect(cameras, &ICameraStatusService::cameraGrabStarted, this,
               &Provider::onCameraGrabStarted);
    disconnect(cameras, &ICameraStatusService::cameraGrabStopped, this,
               &Provider::onCameraGrabStopped);
    disconnect(cameras, &ICameraStatusService::cameraImageGrabbed, this,
               &Provider::onCameraImageGrabFailed);
    disconnect(cameras, &ICameraStatusService::cameraStatisticUpdated, this,
               &Provider::onCameraStatisticUpdated);
}

} // namespace Internal
} // namespace UsageTracking
} // namespace Plugin
