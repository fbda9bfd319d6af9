// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CTaskThread.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace CameraPool {

struct CTaskThread::State
{
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<std::function<void()>> tasks; // guarded by mutex
    bool isStopping = false;                 // guarded by mutex
    std::mutex joinMutex;
    std::thread thread; // joined or detached under joinMutex

    // What the earlier task holds is let go before the wait for the next one.
    bool next(std::function<void()> *task)
    {
        *task = nullptr;
        std::unique_lock<std::mutex> lock(mutex);
        changed.wait(lock, [this] { return isStopping || !tasks.empty(); });
        if (isStopping) {
            return false;
        }
        *task = std::move(tasks.front());
        tasks.pop_front();
        return true;
    }

    void run()
    {
        std::function<void()> task;
        while (next(&task)) {
            task();
        }
    }
};

CTaskThread::CTaskThread()
    : m_state(std::make_shared<State>())
{
    const std::lock_guard<std::mutex> lock(m_state->joinMutex);
    m_state->thread = std::thread([state = m_state] { state->run(); });
}

CTaskThread::~CTaskThread()
{
    stop();
}

void CTaskThread::post(std::function<void()> task)
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        if (m_state->isStopping) {
            return;
        }
        m_state->tasks.push_back(std::move(task));
    }
    m_state->changed.notify_one();
}

void CTaskThread::stop()
{
    std::deque<std::function<void()>> dropped;
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->isStopping = true;
        dropped.swap(m_state->tasks);
    }
    m_state->changed.notify_one();
    const std::lock_guard<std::mutex> lock(m_state->joinMutex);
    if (m_state->thread.get_id() == std::this_thread::get_id()) {
        m_state->thread.detach();
    } else if (m_state->thread.joinable()) {
        m_state->thread.join();
    }
}

} // namespace CameraPool
