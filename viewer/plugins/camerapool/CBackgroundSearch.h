// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraSearch.h"

#include <functional>
#include <memory>

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

    /// Waits for the end of a search that is under way, though no longer than five seconds; then it
    /// is left to itself and tells nothing any more.
    void wait();

private:
    struct State;

    const std::shared_ptr<State> m_state; // the thread may live longer
};

} // namespace CameraPool
