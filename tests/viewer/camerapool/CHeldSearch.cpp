// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CHeldSearch.h"

#include <atomic>
#include <utility>

using namespace CameraPool;

namespace {

constexpr int LimitMs = 30000;

} // namespace

struct CHeldSearch::CHold::State
{
    std::atomic<bool> isHolding{false};
    std::atomic<bool> isSearching{false};
    QSemaphore held;
    QSemaphore letGo;
};

CHeldSearch::CHold::CHold()
    : m_state(std::make_shared<State>())
{}

CHeldSearch::CHold::~CHold()
{
    letGo();
}

std::unique_ptr<ICameraSearch> CHeldSearch::CHold::createSearch() const
{
    return std::make_unique<CHeldSearch>(m_state);
}

bool CHeldSearch::CHold::hold()
{
    m_state->isHolding = true;
    return m_state->held.tryAcquire(1, LimitMs);
}

void CHeldSearch::CHold::letGo()
{
    if (m_state->isHolding.exchange(false)) {
        m_state->letGo.release();
    }
}

bool CHeldSearch::CHold::holdTheNext()
{
    m_state->letGo.release();
    return m_state->held.tryAcquire(1, LimitMs);
}

bool CHeldSearch::CHold::isSearching() const
{
    return m_state->isSearching;
}

CHeldSearch::CHeldSearch(std::shared_ptr<CHold::State> state)
    : m_state(std::move(state))
{}

CHeldSearch::~CHeldSearch() = default;

QVector<CFoundCamera> CHeldSearch::search()
{
    m_state->isSearching = true;
    const bool isHeld = m_state->isHolding;
    const auto found = m_loopback.search();
    if (isHeld) {
        m_state->held.release();
        m_state->letGo.acquire();
    }
    m_state->isSearching = false;
    return found;
}
