// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CStreamCounters.h"
#include "GLibPointers.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <atomic>
#include <functional>
#include <mutex>

#include <QString>

namespace CameraPool {

class CDeviceAccess;

/// A camera that is open, or was: it outlives the closing, so that who still holds it (a parameter,
/// for example) gets a clear refusal. Opening the camera again makes a new object.
///
/// Aravis and GenICam may not be entered by two threads for the same device; whoever wants to,
/// makes a `CDeviceAccess`, which holds this device's lock. All operations may be called in any
/// thread.
class CDevice
{
public:
    /// \a onLost is called at most once, in whichever thread notices the loss, possibly while the
    /// device is locked: it must do no more than post an event.
    CDevice(Core::CameraPoolComponents::CameraInfoPtr info, GObjectPtr<ArvDevice> device,
            std::function<void()> onLost);
    ~CDevice();

    Q_DISABLE_COPY_MOVE(CDevice)

    const Core::CameraPoolComponents::CameraInfoPtr &info() const
    {
        return m_info;
    }

    /// True once the device has stopped answering. It does not come back in this object.
    bool isLost() const
    {
        return m_isLost;
    }

    /// True as long as it can be used: neither closed nor lost.
    bool isOpen() const
    {
        return m_isOpen && !m_isLost;
    }

    /// Notes the loss. Later accesses fail at once.
    void markLost();

    /// Ends all access and gives the connection back. Waits for an access that is under way, and,
    /// if the device does not answer, for some seconds.
    void close();

    /// What the latest stream has counted, as noted last. Never waits for the device, and still
    /// answers when the stream, the connection or the device is gone.
    CStreamCounters counters() const;
    void noteCounters(const CStreamCounters &counters);

private:
    friend class CDeviceAccess;

    static void onControlLost(ArvDevice *device, gpointer self);

    const Core::CameraPoolComponents::CameraInfoPtr m_info;
    const std::function<void()> m_onLost;
    std::atomic<bool> m_isOpen{true};
    std::atomic<bool> m_isLost{false};
    std::recursive_timed_mutex m_lock;
    GObjectPtr<ArvDevice> m_device; // guarded by m_lock; null once closed
    mutable std::mutex m_countersMutex;
    CStreamCounters m_counters; // guarded by m_countersMutex
};

} // namespace CameraPool
