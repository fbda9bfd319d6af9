// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDeviceStore.h"

#include "CDevice.h"

#include <utility>

#include <QMutexLocker>

namespace CameraPool {

CDeviceStore::CDeviceStore() = default;

CDeviceStore::~CDeviceStore() = default;

QSharedPointer<CDevice>
CDeviceStore::device(const Core::CameraPoolComponents::DeviceBaseInfoPtr &camera) const
{
    const auto info = qSharedPointerDynamicCast<Core::CameraPoolComponents::ICameraInfo>(camera);
    if (!info) {
        return {};
    }
    const QMutexLocker lock(&m_mutex);
    return m_devices.value(info->identity());
}

void CDeviceStore::put(const QSharedPointer<CDevice> &device)
{
    QSharedPointer<CDevice> earlier = device;
    {
        const QMutexLocker lock(&m_mutex);
        // Swapped out, so that an earlier device is not destroyed while the mutex is held.
        std::swap(m_devices[device->info()->identity()], earlier);
    }
}

} // namespace CameraPool
