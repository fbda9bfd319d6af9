// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/WorkerLoop.h"

#include "core/Failure.h"
#include "delivery/DeliveryLog.h"
#include "store/Erasure.h"
#include "store/Policy.h"
#include "store/Quota.h"
#include "store/Shrinking.h"
#include "store/SqliteError.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace rui {

namespace {

// Events become too old in days.
constexpr std::int64_t expiryEvery = 3600 * nanosecondsPerSecond;

// Waiting for another writer may take as long as a caller's; cancel() ends it.
std::shared_ptr<BusyLimit> workerBusyLimit(const Limits &limits)
{
    return std::make_shared<BusyLimit>(limits.callBusyLimit);
}

// Somebody has to mend it, and no call of the program fails because of it.
void sayOnce(const std::string &reason)
{
    static std::once_flag once;
    std::call_once(once, [&] {
        std::fprintf(stderr, "ruiSDK: %s; nothing is delivered until this user may open it\n",
                     reason.c_str());
    });
}

void checkpoint(Database &database)
{
    // Passive: it takes what it gets without holding up anybody.
    sqlite3_wal_checkpoint_v2(database.handle(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr,
                              nullptr);
}

} // namespace

// What exists while the database is open.
struct WorkerLoop::Work
{
    Work(const WorkerOptions &options, const std::shared_ptr<BusyLimit> &busyLimit,
         SenderMemory &memory)
        : database(openStore(options.paths, options.opening, busyLimit))
    {
        if (options.transport) {
            sender.emplace(database, options.paths.senderLock(), *options.transport, *options.clock,
                           options.limits, options.delivery, randomJitter, memory);
        }
    }

    Database database;
    std::optional<Sender> sender;
};

WorkerLoop::WorkerLoop(WorkerOptions options)
    : m_options(std::move(options))
    , m_busyLimit(workerBusyLimit(m_options.limits))
{}

void WorkerLoop::run() noexcept
{
    bool again = true;
    while (again) {
        try {
            runRounds();
            again = false;
        } catch (const SqliteError &error) {
            m_isDamaged = error.isDamage();
            sayFailure(error);
            again = mendAtOnce() || rest();
        } catch (const std::exception &error) {
            sayFailure(error);
            again = rest();
        }
    }
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_isDone = true;
    m_done.notify_all();
}

void WorkerLoop::sayFailure(const std::exception &error)
{
    // What was cut short has not failed.
    if (!m_cancelled) {
        m_options.log->say(RUI_LOG_ERROR, error.what());
    }
}

// Also when the session is being ended: the next one would come upon the same damage. Not without
// end, should it be none that can be mended.
bool WorkerLoop::mendAtOnce()
{
    constexpr int maxMendings = 3;
    return m_isDamaged && !m_cancelled && m_mendings++ < maxMendings;
}

bool WorkerLoop::rest()
{
    // A database that cannot be used now may be usable later, or be another one.
    m_sleepTime = m_isDamaged ? m_options.collectTime : m_options.lookEvery;
    return sleep();
}

void WorkerLoop::runRounds()
{
    // Looked through, and replaced, once somebody has come upon damage.
    WorkerOptions options = m_options;
    options.opening.verify = std::exchange(m_isDamaged, false);
    Work work(options, m_busyLimit, m_senderMemory);
    do {
        m_sleepTime = m_options.lookEvery;
        if (work.database.hasMoved()) {
            throw Failure(RUI_STORAGE, "the database was replaced");
        }
        round(work);
    } while (sleep());
    finish(work);
}

void WorkerLoop::round(Work &work)
{
    checkpoint(work.database);
    // Not by the time of day, which may be set back.
    const std::int64_t now = m_options.clock->sinceBoot();
    if (now >= m_nextExpiry) {
        dropExpired(work.database, m_options.limits, *m_options.clock);
        m_nextExpiry = now + expiryEvery;
    }
    const Step step = deliver(work);
    if (step.kind != Step::Kind::Idle) {
        m_sleepTime = std::min(m_sleepTime, untilDue(step.due));
    }
    shrink(work.database);
}

void WorkerLoop::shrink(Database &database)
{
    bool again = true;
    while (again && !m_cancelled) {
        again = shrinkByOneStep(database, m_options.limits);
        checkpoint(database);
    }
    // In a burst the journal would only have to grow again.
    if (!m_notified) {
        shrinkJournal(database, m_options.limits);
    }
}

Step WorkerLoop::deliver(Work &work)
{
    Step step;
    while (work.sender && !m_deliveryEnded && !isDeliveryForbidden(work.database)
           && !isDeliveryPaused(work.database)) {
        step = work.sender->step();
        logStep(*m_options.log, step, m_options.clock->now());
        if (step.kind == Step::Kind::NoLock) {
            sayOnce(step.reason);
        }
        if (step.kind != Step::Kind::Progress) {
            break;
        }
        // A large backlog is written to the journal as a whole.
        if (work.database.journalPages() >= m_options.limits.largeJournalPages) {
            checkpoint(work.database);
        }
    }
    if (!finishErasure(work.database)) {
        m_sleepTime = std::min(m_sleepTime, m_options.collectTime);
    }
    return step;
}

void WorkerLoop::finish(Work &work)
{
    if (!m_deliverAtStop) {
        return;
    }
    for (Step step = deliver(work); step.kind != Step::Kind::Idle; step = deliver(work)) {
        if (!sleepDuringStop(untilDue(step.due))) {
            break;
        }
    }
    shrink(work.database);
}

std::chrono::milliseconds WorkerLoop::untilDue(std::int64_t due) const
{
    const std::int64_t wait = std::max<std::int64_t>(0, due - m_options.clock->now());
    return std::chrono::milliseconds(wait / nanosecondsPerMillisecond + 1);
}

bool WorkerLoop::sleep()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    if (m_wake.wait_for(lock, m_sleepTime, [this] { return m_stop || m_notified; })) {
        // More events usually follow the first one.
        m_wake.wait_for(lock, m_options.collectTime, [this] { return m_stop || m_urgent; });
    }
    m_notified = false;
    m_urgent = false;
    return !m_stop;
}

bool WorkerLoop::sleepDuringStop(std::chrono::milliseconds time)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return time < m_stopLimit
           && !m_wake.wait_for(lock, time, [this] { return m_cancelled.load(); });
}

void WorkerLoop::notify(bool urgent)
{
    const bool wasUrgent = urgent && m_urgent.exchange(true);
    const bool wasNotified = m_notified.exchange(true);
    if (!wasNotified || (urgent && !wasUrgent)) {
        // Between the worker's look and its sleep a wake-up would be lost without the lock.
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_wake.notify_one();
    }
}

void WorkerLoop::requestStop(bool deliver, std::chrono::milliseconds limit)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_stop = true;
    m_deliverAtStop = deliver;
    m_stopLimit = limit;
    m_wake.notify_all();
}

void WorkerLoop::endDelivery()
{
    m_deliveryEnded = true;
    if (m_options.transport) {
        m_options.transport->cancel();
    }
}

void WorkerLoop::cancel()
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_cancelled = true;
    m_busyLimit->giveUp = true;
    endDelivery();
    m_wake.notify_all();
}

bool WorkerLoop::waitUntilDone(std::chrono::milliseconds limit)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_done.wait_for(lock, limit, [this] { return m_isDone; });
}

} // namespace rui
