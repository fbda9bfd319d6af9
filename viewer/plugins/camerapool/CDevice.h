// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CDeviceLock.h"
#include "CStreamCounters.h"
#include "CTaskThread.h"
#include "GLibPointers.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include <QString>

namespace CameraPool {

class CDeviceAccess;

/// A camera that is open, or was: it outlives the closing, so that who still holds it (a parameter,
/// for example) gets a clear refusal. Opening the camera again makes a new object.
///
/// Aravis and GenICam may not be entered by two threads for the same device, and an access to a
/// device that died blocks for up to five seconds. So there are two ways in, which may be mixed:
///
/// - `call` does the work in the device's own thread and does not wait for it longer than the
/// device
///   is believed to live. It is meant for everything that asks the device itself.
/// - a local `CDeviceAccess` takes the device's lock in the calling thread. It is meant for what is
///   only looked up in the device's description.
///
/// All operations may be called in any thread.
class CDevice
{
public:
    /// \a onLost is called at most once, in whichever thread notices the loss, possibly while the
    /// device is locked: it must do no more than post an event. \a isAnswering asks the device by
    /// another way whether it is still there; it is called in any thread that waits for the device.
    CDevice(Core::CameraPoolComponents::CameraInfoPtr info, GObjectPtr<ArvDevice> device,
            std::function<void()> onLost, std::function<bool()> isAnswering);
    ~CDevice();

    Q_DISABLE_COPY_MOVE(CDevice)

    const Core::CameraPoolComponents::CameraInfoPtr &info() const
    {
        return m_info;
    }

    /// What the user reads in messages. It follows a renaming; `info` does not.
    QString name() const;
    void setName(const QString &name);

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

    /// Does \a work, which takes a `const CDeviceAccess &`, in the device's thread, and gives its
    /// result. Where the caller gives up waiting, \a work goes on: it must own all that it uses.
    /// @throws ParameterCollection::CParameterException at once if the device is closed or lost,
    /// and as soon as it is lost meanwhile. It is lost if it keeps others waiting and, asked every
    /// half second, gives no answer to the question whether it is there; and after a minute. Also
    /// whatever \a work throws.
    template <class Work>
    auto call(Work work);

    /// From now on, whoever is kept waiting longer than \a patience in all finds the device lost:
    /// it is about to be closed. Callable in any thread.
    void limitPatience(std::chrono::milliseconds patience);

    /// Keeps something alive that uses the connection, until that is given back.
    void keepUntilClosed(std::shared_ptr<void> object);

    /// Ends all access and gives the connection back. Waits for an access that is under way, and,
    /// if the device does not answer, for some seconds.
    void close();

    /// What the latest stream has counted, as noted last. Never waits for the device, and still
    /// answers when the stream, the connection or the device is gone.
    CStreamCounters counters() const;
    void noteCounters(const CStreamCounters &counters);

private:
    friend class CDeviceAccess;

    void throwIfUnusable() const;

    // Waits until \a isDone, which waits for as long as it is told, gives true.
    void waitFor(const std::function<bool(std::chrono::milliseconds)> &isDone);

    static void onControlLost(ArvDevice *device, gpointer self);

    const Core::CameraPoolComponents::CameraInfoPtr m_info;
    const std::function<void()> m_onLost;
    const std::function<bool()> m_isAnswering;
    std::atomic<bool> m_isOpen{true};
    std::atomic<bool> m_isLost{false};
    // When patience ends with everybody, whoever waits.
    std::atomic<std::chrono::steady_clock::time_point> m_end{
        std::chrono::steady_clock::time_point::max()};
    CDeviceLock m_lock;
    GObjectPtr<ArvDevice> m_device; // guarded by m_lock; null once closed
    std::mutex m_keptMutex;
    std::vector<std::shared_ptr<void>> m_kept; // guarded by m_keptMutex
    mutable std::mutex m_nameMutex;
    QString m_name; // guarded by m_nameMutex
    mutable std::mutex m_countersMutex;
    CStreamCounters m_counters; // guarded by m_countersMutex
    CTaskThread m_thread;       // last, so that it ends first
};

} // namespace CameraPool
