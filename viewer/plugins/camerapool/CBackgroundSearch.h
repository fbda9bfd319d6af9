// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICameraSearch.h"

#include <functional>
#include <memory>

namespace CameraPool {

/// Searches in a thread of its own, so that nobody who asks something of the pool waits for the
/// answers of cameras. Used in one thread.
class CBackgroundSearch
{
public:
    /// \a onFound is called in another thread with what a search found, and must do no more than
    /// post an event.
    CBackgroundSearch(std::unique_ptr<ICameraSearch> search,
                      std::function<void(const QVector<CFoundCamera> &found)> onFound);

    /// Does not wait for a search that is under way: it is left to itself, and what it finds is not
    /// told.
    ~CBackgroundSearch();

    Q_DISABLE_COPY_MOVE(CBackgroundSearch)

    /// Searches once. The search before must have told what it found.
    void begin();

private:
    struct State;

    // Shared with the thread, which may live longer.
    const std::shared_ptr<State> m_state;
};

} // namespace CameraPool
