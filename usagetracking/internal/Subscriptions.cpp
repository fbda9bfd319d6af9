// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the provider listens to while a session is open.

#include "CUsageTrackingProvider.h"

namespace Plugin::UsageTracking::Internal {

using CameraPool::ICameraEnumerationService;
using CameraPool::ICameraStatusService;
using CameraPool::IDeviceStatusService;
using CameraSelector::IDeviceSelectorService;
using FeatureTree::IFeatureTreeStatusService;
using Provider = CUsageTrackingProvider;

template <class Visit>
void CUsageTrackingProvider::forEachSubscription(Visit visit)
{
    const auto listen = [&](const auto &service, auto signal, auto slot,
                            Qt::ConnectionType type = Qt::AutoConnection) {
        if (service) {
            visit(service.data(), signal, slot, type);
        }
    };
    for (const auto &featureTree : qAsConst(m_featureTreeServices)) {
        listen(featureTree, &IFeatureTreeStatusService::currentChanged,
               &Provider::onParameterSelectionChanged);
    }
    listen(m_deviceSelectorService, &IDeviceSelectorService::selectionChanged,
           &Provider::onDeviceSelectionChanged);
    const auto &cameras = m_cameraStatusService;
    listen(cameras, &ICameraStatusService::deviceConnected, &Provider::onCameraConnected);
    listen(cameras, &ICameraStatusService::deviceDisconnected, &Provider::onCameraDisconnected);
    listen(m_enumerationService, &ICameraEnumerationService::enumerationChanged,
           &Provider::onEnumerationChanged);
    listen(cameras, &IDeviceStatusService::deviceOpened, &Provider::onDeviceOpened);
    // The device is closed when this slot has returned, so that it can still be read.
    listen(cameras, &IDeviceStatusService::deviceClosing, &Provider::onDeviceClosing,
           Qt::BlockingQueuedConnection);
    listen(cameras, &ICameraStatusService::cameraGrabStarted, &Provider::onCameraGrabStarted);
    listen(cameras, &ICameraStatusService::cameraGrabStopped, &Provider::onCameraGrabStopped);
    listen(cameras, &ICameraStatusService::cameraImageGrabbed, &Provider::onCameraImageGrabFailed);
    listen(cameras, &ICameraStatusService::cameraStatisticUpdated,
           &Provider::onCameraStatisticUpdated);
}

void CUsageTrackingProvider::subscribe()
{
    forEachSubscription([this](auto *sender, auto signal, auto slot, Qt::ConnectionType type) {
        connect(sender, signal, this, slot, type);
    });
}

void CUsageTrackingProvider::unsubscribe()
{
    forEachSubscription([this](auto *sender, auto signal, auto slot, Qt::ConnectionType) {
        disconnect(sender, signal, this, slot);
    });
}

} // namespace Plugin::UsageTracking::Internal
