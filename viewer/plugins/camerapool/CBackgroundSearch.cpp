// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CBackgroundSearch.h"

#include "LeftBehind.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace CameraPool {
namespace {

// Above what every search keeps to.
constexpr std::chrono::seconds Patience(5);

} // namespace

struct CBackgroundSearch::State
{
    std::unique_ptr<ICameraSearch> search; // used by the thread alone while isRunning
    std::mutex mutex;
    std::condition_variable changed;
    std::function<void(const QVector<CFoundCamera> &)> onFound; // empty once left behind
    bool isRunning = false;                                     // both guarded by mutex

    void run()
    {
        const QVector<CFoundCamera> found = search->search();
        const std::lock_guard<std::mutex> lock(mutex);
        isRunning = false;
        if (onFound) {
            onFound(found);
        }
        changed.notify_all();
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
    wait();
}

void CBackgroundSearch::begin()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->isRunning = true;
    std::thread([state = m_state] { state->run(); }).detach();
}

void CBackgroundSearch::wait()
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    const bool hasEnded =
        m_state->changed.wait_for(lock, Patience, [this] { return !m_state->isRunning; });
    if (!hasEnded && m_state->onFound) {
        m_state->onFound = nullptr;
        noteLeftBehind(QStringLiteral("the search for cameras"));
    }
}

} // namespace CameraPool
