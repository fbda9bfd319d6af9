// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/CLoopbackSearch.h"

#include <memory>

#include <QSemaphore>

// A search of the loopback addresses that a test can hold when the cameras have answered: it then
// lasts until the test lets it go, and tells what was true before.
class CHeldSearch : public CameraPool::ICameraSearch
{
public:
    // The test's side. It lets the search go at the latest when it ends.
    class CHold
    {
    public:
        CHold();
        ~CHold();

        Q_DISABLE_COPY_MOVE(CHold)

        std::unique_ptr<CameraPool::ICameraSearch> createSearch() const;

        // Holds the next search. True when that has its answers, which it has not told.
        bool hold();
        void letGo();

        // Lets go the one that is held and holds the next one: what the first one found is taken
        // in then.
        bool holdTheNext();

        // From the begin of a search to its end. Callable in any thread.
        bool isSearching() const;

    private:
        friend class CHeldSearch;
        struct State;

        const std::shared_ptr<State> m_state; // the search may live longer
    };

    explicit CHeldSearch(std::shared_ptr<CHold::State> state);
    ~CHeldSearch() override;

    QVector<CameraPool::CFoundCamera> search() override;

private:
    const std::shared_ptr<CHold::State> m_state;
    CameraPool::CLoopbackSearch m_loopback;
};
