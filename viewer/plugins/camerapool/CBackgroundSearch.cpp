// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CBackgroundSearch.h"

#include <mutex>
#include <thread>
#include <utility>

namespace CameraPool {

struct CBackgroundSearch::State
{
    std::unique_ptr<ICameraSearch> search; // by one thread at a time
    std::mutex mutex;
    std::function<void(const QVector<CFoundCamera> &)>
        onFound; // empty at the end; guarded by mutex

    void run()
    {
        const QVector<CFoundCamera> found = search->search();
        const std::lock_guard<std::mutex> lock(mutex);
        if (onFound) {
            onFound(found);
        }
    }
};

CBackgroundSearch::CBackgroundSearch(std::unique_ptr<ICameraSearch> search,
                                     std::function<void(const QVector<CFoundCamera> &)> onFound)
    : m_state(std::make_shared<State>())
{
    m_state->search = std::move(search);
    m_state->onFound = std::move(onFound);
}

CBackgroundSearch::~CBackgroundSearch()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->onFound = nullptr;
}

void CBackgroundSearch::begin()
{
    std::thread([state = m_state] { state->run(); }).detach();
}

} // namespace CameraPool
