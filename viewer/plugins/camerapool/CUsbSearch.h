// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <future>
#include <memory>

#include <QVector>

namespace CameraPool {

/// Finds the cameras at USB with Aravis, which asks each device and has no limit for its answer. It
/// does that in a thread of its own, which is left to itself if it does not come back. Used by one
/// thread at a time.
class CUsbSearch
{
public:
    CUsbSearch();
    ~CUsbSearch();

    Q_DISABLE_COPY_MOVE(CUsbSearch)

    /// What is there now, or, while a device keeps Aravis waiting, what was there before. Waits for
    /// two seconds at most.
    QVector<CFoundCamera> search();

private:
    using Found = std::shared_ptr<QVector<CFoundCamera>>;

    std::shared_future<Found> m_underWay; // not valid if none is
    bool m_isLate = false;
    QVector<CFoundCamera> m_last;
};

} // namespace CameraPool
