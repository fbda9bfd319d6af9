// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CDevice.h"

#include <chrono>
#include <future>
#include <memory>
#include <mutex>
#include <utility>

#include <QString>

namespace CameraPool {

/// The right to use an open device in one thread, for the life of this object, which is short: a
/// local variable. May be nested. No signal may be emitted while it lives.
class CDeviceAccess
{
public:
    /// Waits until no other thread uses \a device.
    /// @throws ParameterCollection::CParameterException as `CDevice::call`.
    explicit CDeviceAccess(CDevice &device);

    Q_DISABLE_COPY_MOVE(CDeviceAccess)

    /// Never null. Valid while this object lives.
    ArvDevice *device() const
    {
        return m_device.m_device.get();
    }

    /// The GenICam description. Never null. Valid while this object lives.
    ArvGc *genicam() const
    {
        return arv_device_get_genicam(device());
    }

    /// Looks at the outcome of a call: does nothing without an error. A time-out means that the
    /// device is lost.
    /// @throws ParameterCollection::CParameterException with "\a what: " and the error's text.
    void check(const CGError &error, const QString &what) const;

private:
    CDevice &m_device;
    std::unique_lock<CDeviceLock> m_lock;
};

template <class Work>
auto CDevice::call(Work work)
{
    using Result = decltype(work(std::declval<const CDeviceAccess &>()));
    throwIfUnusable();
    const auto task = std::make_shared<std::packaged_task<Result()>>(
        [this, work] { return work(CDeviceAccess(*this)); });
    std::future<Result> result = task->get_future();
    m_thread.post([task] { (*task)(); });
    waitFor([&](std::chrono::milliseconds interval) {
        return result.wait_for(interval) == std::future_status::ready;
    });
    try {
        return result.get();
    } catch (const std::future_error &) {
        throwIfUnusable(); // closed before the work had begun
        throw;
    }
}

} // namespace CameraPool
