// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CDeviceSelectionService.h"

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
    if (device != m_selected) {
        m_selected = device;
        Q_EMIT selectionChanged(device);
    }
}

} // namespace CameraSelector
