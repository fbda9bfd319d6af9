// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include <QtGlobal>

namespace CameraPool {

/// A recursive mutex that can be waited for with patience. The standard library has one, but its
/// waiting goes past the thread sanitizer of GCC 12, which then sees races everywhere.
class CDeviceLock
{
public:
    CDeviceLock() = default;
    Q_DISABLE_COPY_MOVE(CDeviceLock)

    /// Takes the lock, which the calling thread may hold already, within \a patience.
    bool tryLockFor(std::chrono::milliseconds patience);

    void lock();

    /// Gives back what one call of the others took, in the same thread.
    void unlock();

private:
    bool isFreeForMe() const
    {
        return m_depth == 0 || m_owner == std::this_thread::get_id();
    }
    void take();

    std::mutex m_mutex;
    std::condition_variable m_freed;
    std::thread::id m_owner; // guarded by m_mutex, as the next one
    int m_depth = 0;
};

} // namespace CameraPool
