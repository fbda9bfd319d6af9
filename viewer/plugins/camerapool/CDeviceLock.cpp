// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDeviceLock.h"

namespace CameraPool {

bool CDeviceLock::tryLockFor(std::chrono::milliseconds patience)
{
    std::unique_lock<std::mutex> guard(m_mutex);
    if (!m_freed.wait_for(guard, patience, [this] { return isFreeForMe(); })) {
        return false;
    }
    take();
    return true;
}

void CDeviceLock::lock()
{
    std::unique_lock<std::mutex> guard(m_mutex);
    m_freed.wait(guard, [this] { return isFreeForMe(); });
    take();
}

void CDeviceLock::unlock()
{
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        --m_depth;
    }
    m_freed.notify_one();
}

void CDeviceLock::take()
{
    m_owner = std::this_thread::get_id();
    ++m_depth;
}

} // namespace CameraPool
