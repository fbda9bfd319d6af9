// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraSearch.h"

#include <functional>
#include <memory>
#include <thread>

namespace CameraPool {

/// Searches in a thread of its own, so that nobody who asks something of the pool waits for the
/// answers of cameras. Used by one thread at a time.
class CBackgroundSearch
{
public:
    /// \a onFound is called in another thread with what a search found, and must do no more than
    /// post an event.
    CBackgroundSearch(std::unique_ptr<ICameraSearch> search,
                      std::function<void(const QVector<CFoundCamera> &found)> onFound);

    /// Waits as `wait` does.
    ~CBackgroundSearch();

    Q_DISABLE_COPY_MOVE(CBackgroundSearch)

    /// Searches once. The search before must have told what it found.
    void begin();

    /// Waits for the end of a search that is under way. A program must not end before: what it
    /// tidies up at its end, Aravis is still using.
    void wait();

private:
    const std::unique_ptr<ICameraSearch> m_search;
    const std::function<void(const QVector<CFoundCamera> &)> m_onFound;
    std::thread m_thread;
};

} // namespace CameraPool
