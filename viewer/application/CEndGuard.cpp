// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CEndGuard.h"

#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

namespace Application {

namespace {

using Clock = std::chrono::steady_clock;

} // namespace

// Shared with the threads that ask, which the guard does not wait for.
struct CEndGuard::State : std::enable_shared_from_this<State>
{
    Asker asker;
    Ender ender;
    Limits limits;
    std::mutex mutex;
    std::condition_variable changed;
    EndStep step;
    EndStep idle;
    Clock::time_point began;
    Clock::time_point askAt;
    bool isWatching = false;
    bool isAsking = false;
    bool isInsistedOn = false;
    bool isStepInsistedOn = false;
    bool isOver = false;
    std::thread thread;

    void begin(const EndStep &next)
    {
        step = next;
        isWatching = true;
        isStepInsistedOn = false;
        began = Clock::now();
        askAt = began + limits.patience;
        changed.notify_all();
    }

    void run()
    {
        std::unique_lock<std::mutex> lock(mutex);
        while (!isOver) {
            if (!isWatching) {
                changed.wait(lock);
            } else if (isInsistedOn || isStepInsistedOn) {
                waitUntil(lock, began + limits.grace, &State::end);
            } else if (isAsking) {
                changed.wait(lock);
            } else {
                waitUntil(lock, askAt, &State::ask);
            }
        }
    }

    // Looks again at whatever has changed meanwhile, which may be all of it.
    void waitUntil(std::unique_lock<std::mutex> &lock, Clock::time_point time,
                   void (State::*act)(std::unique_lock<std::mutex> &))
    {
        if (Clock::now() < time) {
            changed.wait_until(lock, time);
        } else {
            (this->*act)(lock);
        }
    }

    void end(std::unique_lock<std::mutex> &lock)
    {
        isWatching = false;
        const EndStep stuck = step;
        lock.unlock();
        ender(stuck);
        lock.lock();
    }

    // Whatever the question needs may hang as well.
    void ask(std::unique_lock<std::mutex> &)
    {
        isAsking = true;
        std::thread([self = shared_from_this(), stuck = step] {
            self->answer(self->asker(stuck));
        }).detach();
    }

    void answer(bool isEndWanted)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isAsking = false;
        isInsistedOn = isInsistedOn || isEndWanted;
        askAt = Clock::now() + limits.pause;
        changed.notify_all();
    }
};

CEndGuard::CEndGuard(Asker asker, Ender ender, const Limits &limits)
    : m_state(std::make_shared<State>())
{
    m_state->asker = std::move(asker);
    m_state->ender = std::move(ender);
    m_state->limits = limits;
    m_state->thread = std::thread(&State::run, m_state.get());
}

CEndGuard::CEndGuard(Asker asker, Ender ender)
    : CEndGuard(std::move(asker), std::move(ender), Limits())
{}

CEndGuard::~CEndGuard()
{
    {
        const std::lock_guard<std::mutex> lock(m_state->mutex);
        m_state->isOver = true;
    }
    m_state->changed.notify_all();
    m_state->thread.join();
}

void CEndGuard::expect(const EndStep &step)
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->begin(step);
}

void CEndGuard::rest(const EndStep &idle)
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->idle = idle;
    m_state->isWatching = false;
    m_state->changed.notify_all();
}

void CEndGuard::request()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    if (!m_state->isWatching) {
        m_state->begin(m_state->idle);
    }
}

void CEndGuard::insistOnStep()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->isStepInsistedOn = true;
    m_state->changed.notify_all();
}

void CEndGuard::insist()
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    m_state->isInsistedOn = true;
    m_state->changed.notify_all();
}

bool CEndGuard::isInsistedOn() const
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->isInsistedOn;
}

} // namespace Application
