// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDeviceAccess.h"

#include <ParameterCollection/CParameterException.h>

#include <chrono>

namespace CameraPool {
namespace {

using ParameterCollection::CParameterException;

// How often a waiting thread looks whether the device was lost meanwhile. The thread that it waits
// for may be stuck in a time-out of some seconds.
constexpr std::chrono::milliseconds LookInterval(50);

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
    do {
        throwIfUnusable();
    } while (!m_lock.try_lock_for(LookInterval));
    throwIfUnusable();
    if (!m_device.m_device) {
        throw CParameterException(
            QStringLiteral("%1 is closed: open it again").arg(device.info()->displayName()));
    }
}

void CDeviceAccess::check(const CGError &error, const QString &what) const
{
    if (!error) {
        return;
    }
    if (meansLost(error)) {
        m_device.markLost();
        throwIfUnusable();
    }
    throw CParameterException(QStringLiteral("%1: %2").arg(what, error.message()));
}

void CDeviceAccess::throwIfUnusable() const
{
    if (m_device.isLost()) {
        throw CParameterException(
            QStringLiteral("%1 is gone: check its cable and power, then open it again")
                .arg(m_device.info()->displayName()));
    }
}

} // namespace CameraPool
