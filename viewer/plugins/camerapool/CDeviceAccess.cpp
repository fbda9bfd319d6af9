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
        [this](std::chrono::milliseconds interval) { return m_lock.try_lock_for(interval); });
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
