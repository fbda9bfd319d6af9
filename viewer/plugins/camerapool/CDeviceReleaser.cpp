// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDeviceReleaser.h"

#include "CDevice.h"
#include "LeftBehind.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include <QSet>

namespace CameraPool {
namespace {

constexpr std::chrono::milliseconds PatienceForOne(500);
constexpr std::chrono::seconds PatienceAtTheEnd(3);

} // namespace

struct CDeviceReleaser::State
{
    std::mutex mutex;
    std::condition_variable changed;
    QSet<QString> underWay;                          // guarded by mutex
    QSet<QString> late;                              // those that release did not wait for
    std::function<void(const QString &)> onReleased; // empty at the end; guarded by mutex

    void end(const QString &identity)
    {
        const std::lock_guard<std::mutex> lock(mutex);
        underWay.remove(identity);
        if (late.remove(identity) && onReleased) {
            onReleased(identity);
        }
        changed.notify_all();
    }
};

CDeviceReleaser::CDeviceReleaser(std::function<void(const QString &)> onReleased)
    : m_state(std::make_shared<State>())
{
    m_state->onReleased = std::move(onReleased);
}

CDeviceReleaser::~CDeviceReleaser() = default;

void CDeviceReleaser::finish()
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    m_state->onReleased = nullptr;
    m_state->changed.wait_for(lock, PatienceAtTheEnd,
                              [this] { return m_state->underWay.isEmpty(); });
    for (const QString &identity : qAsConst(m_state->underWay)) {
        noteLeftBehind(identity);
    }
}

void CDeviceReleaser::release(const QSharedPointer<CDevice> &device)
{
    run(
        device->info()->identity(), [device] { device->close(); },
        device->isLost() ? std::chrono::milliseconds(0) : PatienceForOne);
}

void CDeviceReleaser::await(const QString &identity, std::function<void()> work)
{
    run(identity, std::move(work), std::chrono::milliseconds(0));
}

void CDeviceReleaser::run(const QString &identity, std::function<void()> work,
                          std::chrono::milliseconds patience)
{
    std::unique_lock<std::mutex> lock(m_state->mutex);
    m_state->underWay.insert(identity);
    std::thread([state = m_state, work = std::move(work), identity]() mutable {
        work();
        work = nullptr;
        state->end(identity);
    }).detach();
    const bool isDone = m_state->changed.wait_for(
        lock, patience, [&] { return !m_state->underWay.contains(identity); });
    if (!isDone) {
        m_state->late.insert(identity);
    }
}

bool CDeviceReleaser::isReleasing(const QString &identity) const
{
    const std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->underWay.contains(identity);
}

} // namespace CameraPool
