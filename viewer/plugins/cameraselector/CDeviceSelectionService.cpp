// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CDeviceSelectionService.h"

#include "plugins/camerapool/SameCamera.h"

namespace CameraSelector {

CDeviceSelectionService::CDeviceSelectionService(QObject *parent)
    : IDeviceSelectionService(parent)
{}

CDeviceSelectionService::~CDeviceSelectionService() = default;

Core::CameraPoolComponents::DeviceBaseInfoPtr CDeviceSelectionService::selected() const
{
    return m_selected;
}

void CDeviceSelectionService::select(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device)
{
    const bool isChange = !CameraPool::isSameCamera(device, m_selected);
    m_selected = device;
    if (isChange) {
        Q_EMIT selectionChanged(device);
    }
}

} // namespace CameraSelector
