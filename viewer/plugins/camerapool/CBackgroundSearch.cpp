// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CBackgroundSearch.h"

#include <utility>

namespace CameraPool {

CBackgroundSearch::CBackgroundSearch(std::unique_ptr<ICameraSearch> search,
                                     std::function<void(const QVector<CFoundCamera> &)> onFound)
    : m_search(std::move(search))
    , m_onFound(std::move(onFound))
{}

CBackgroundSearch::~CBackgroundSearch()
{
    wait();
}

void CBackgroundSearch::begin()
{
    wait();
    m_thread = std::thread([this] { m_onFound(m_search->search()); });
}

void CBackgroundSearch::wait()
{
    if (m_thread.joinable()) {
        m_thread.join();
    }
}

} // namespace CameraPool
