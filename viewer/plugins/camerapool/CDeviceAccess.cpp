// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDeviceAccess.h"

#include <ParameterCollection/CParameterException.h>

#include <chrono>

namespace CameraPool {
namespace {

bool meansLost(const CGError &error)
{
    return error.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT)
           || error.is(ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONNECTED);
}

} // namespace

CDeviceAccess::CDeviceAccess(CDevice &device)
    : m_device(device)
    , m_lock(device.m_lock, std::defer_lock)
{
    device.waitFor(
        [&](std::chrono::milliseconds interval) { return device.m_lock.tryLockFor(interval); });
    m_lock = std::unique_lock<CDeviceLock>(device.m_lock, std::adopt_lock);
    device.throwIfUnusable();
}

void CDeviceAccess::check(const CGError &error, const QString &what) const
{
    if (!error) {
        return;
    }
    if (meansLost(error)) {
        m_device.markLost();
        m_device.throwIfUnusable();
    }
    throw ParameterCollection::CParameterException(
        QStringLiteral("%1: %2").arg(what, error.message()));
}

} // namespace CameraPool
