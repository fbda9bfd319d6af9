// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CPoolTiming.h"
#include "ICameraSearch.h"

#include <memory>

#include <QSharedPointer>
#include <QThread>

namespace CameraPool {

class CCameraControl;
class CCameraEnumeration;
class CCameraStatus;
class CDeviceStore;
class CImageNews;
class CPoolWorker;

/// The camera pool: its services, its thread, its worker. Owned and called in the GUI thread.
class CCameraPool
{
public:
    CCameraPool(std::unique_ptr<ICameraSearch> search, const CPoolTiming &timing);

    /// Stops as `stop` does.
    ~CCameraPool();

    Q_DISABLE_COPY_MOVE(CCameraPool)

    /// Starts the thread. From now on requests are served; nothing is searched yet.
    void start();

    /// Begins to search, after the delay for the first search.
    void beginSearching();

    /// Closes what is open and ends the thread. While it waits, events of the calling thread are
    /// served, because a receiver of `deviceClosing` may live there. Does nothing if not started.
    void stop();

    /// Never null. They may be kept longer than the pool; then they have nothing to tell.
    QSharedPointer<CCameraStatus> status() const
    {
        return m_status;
    }
    QSharedPointer<CCameraEnumeration> enumeration() const
    {
        return m_enumeration;
    }
    QSharedPointer<CCameraControl> control() const
    {
        return m_control;
    }
    QSharedPointer<CImageNews> images() const
    {
        return m_images;
    }
    QSharedPointer<CDeviceStore> devices() const
    {
        return m_devices;
    }

private:
    const QSharedPointer<CCameraStatus> m_status;
    const QSharedPointer<CCameraEnumeration> m_enumeration;
    const QSharedPointer<CCameraControl> m_control;
    const QSharedPointer<CImageNews> m_images;
    const QSharedPointer<CDeviceStore> m_devices;
    std::unique_ptr<CPoolWorker> m_worker;
    QThread m_thread;
};

} // namespace CameraPool
