// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Sender.h"

#include "core/Failure.h"
#include "core/Utf8.h"
#include "delivery/Gzip.h"
#include "delivery/RetryAfter.h"
#include "delivery/Verdict.h"

#include <algorithm>

namespace rui {

namespace {

// Another sender is done with its request by then.
constexpr std::int64_t otherSenderWait = nanosecondsPerSecond;

class Unlock
{
public:
    explicit Unlock(FileLock &lock)
        : m_lock(lock)
    {}
    ~Unlock()
    {
        m_lock.unlock();
    }
    Unlock(const Unlock &) = delete;
    Unlock &operator=(const Unlock &) = delete;

private:
    FileLock &m_lock;
};

std::string describe(const Response &response)
{
    return response.status == 0 ? oneLine(response.error)
                                : "the server answered " + std::to_string(response.status);
}

// Further away than when it was set: the clock was set back meanwhile.
std::int64_t dueTimeOf(const Schedule &schedule, std::int64_t now)
{
    return schedule.notBefore > now + schedule.wait ? 0 : schedule.notBefore;
}

std::string describeRejected(std::int64_t count)
{
    return count == 0 ? std::string() : "the server rejected " + std::to_string(count);
}

std::string describeDropped(std::size_t count, const std::string &reason)
{
    return "dropped " + std::to_string(count) + " that the server refused alone"
           + (reason.empty() ? "" : ", " + reason);
}

} // namespace

Sender::Sender(Database &database, std::string lockPath, Transport &transport, const Clock &clock,
               Limits limits, DeliveryLimits deliveryLimits, Jitter jitter, SenderMemory &memory)
    : m_lockPath(std::move(lockPath))
    , m_transport(transport)
    , m_clock(clock)
    , m_limits(deliveryLimits)
    , m_jitter(std::move(jitter))
    , m_memory(memory)
    , m_outbox(database, limits)
    , m_batchRecords(deliveryLimits.batchRecords)
{}

std::int64_t Sender::dueTime() const
{
    const std::int64_t now = m_clock.now();
    return std::max(dueTimeOf(m_outbox.schedule(), now), dueTimeOf(m_memory.schedule, now));
}

Step Sender::step()
{
    const std::int64_t due = dueTime();
    if (due > m_clock.now() && (m_memory.unsettled || m_outbox.hasRecords())) {
        return {Step::Kind::NotDue, due, {}, 0};
    }
    return tryNow(Refused::Dropped);
}

Step Sender::stepNow()
{
    return tryNow(Refused::Kept);
}

Step Sender::tryNow(Refused refused)
{
    if (!m_memory.unsettled && !m_outbox.hasRecords()) {
        return {};
    }
    try {
        if (!m_lock) {
            m_lock.emplace(m_lockPath);
        }
    } catch (const Failure &failure) {
        postpone();
        return {Step::Kind::NoLock, m_memory.schedule.notBefore, failure.what(), 0};
    }
    if (!m_lock->tryLock()) {
        return {Step::Kind::OtherSends, m_clock.now() + otherSenderWait, {}, 0};
    }
    const Unlock unlock(*m_lock);
    return work(refused);
}

Step Sender::work(Refused refused)
{
    try {
        return m_memory.unsettled ? settle(refused, {}) : send(refused);
    } catch (...) {
        postpone();
        throw;
    }
}

// Everything is read anew for each try: an opt-out may have come in between.
Step Sender::send(Refused refused)
{
    Batch batch = m_outbox.next(m_batchRecords, m_limits.batchBytes, m_clock.now(), lastSuspect());
    if (batch.keys.empty()) {
        return m_suspects.empty() ? Step{} : holdBack(m_suspects.back().reason, refused);
    }
    const Response response = m_transport.post(gzip(batch.payload));
    if (response.cancelled) {
        return {Step::Kind::Failed, m_clock.now(), {}, 0};
    }
    return apply(std::move(batch), response, refused);
}

Step Sender::apply(Batch batch, const Response &response, Refused refused)
{
    const Verdict verdict = verdictOf(response);
    switch (verdict.kind) {
    case Verdict::Kind::Delivered:
        m_memory.unsettled = {std::move(batch), verdict.rejected};
        return settle(refused, describeRejected(verdict.rejected));
    case Verdict::Kind::Retry:
        return retry(response, refused);
    case Verdict::Kind::WrongPlace:
        return holdBack(describe(response), refused);
    case Verdict::Kind::Malformed:
    case Verdict::Kind::TooLarge:
        break;
    }
    if (batch.keys.size() > 1) {
        return split(batch, response);
    }
    const bool isTooLarge = verdict.kind == Verdict::Kind::TooLarge;
    return suspect(std::move(batch), response,
                   isTooLarge ? LossReason::RequestSize : LossReason::Rejected, refused);
}

Step Sender::settle(Refused refused, const std::string &reason)
{
    const std::size_t records = m_memory.unsettled->batch.keys.size();
    m_outbox.settle(m_memory.unsettled->batch, m_memory.unsettled->rejected, m_clock.now());
    m_memory = {};
    m_refusalsInARow = 0;
    m_batchRecords = std::min(m_limits.batchRecords, m_batchRecords * 2);
    const std::size_t dropped = refused == Refused::Dropped ? dropSuspects() : 0;
    return {Step::Kind::Progress, 0, dropped == 0 ? reason : describeDropped(dropped, reason),
            records};
}

Step Sender::retry(const Response &response, Refused refused)
{
    // A wrong address must not hold up the sessions, which send to another one.
    if (refused == Refused::Kept) {
        return {Step::Kind::Failed, m_clock.now(), describe(response), 0};
    }
    const auto asked = parseRetryAfter(response.retryAfter, m_clock.now(), m_limits.maxRetryAfter);
    // A time that has passed, be it for a clock that is ahead of the server's, is no leave to ask
    // without a pause.
    const bool isAsked = asked && asked->count() > 0;
    return waitFor(isAsked ? waitWhenAsked(*asked, m_limits, m_jitter)
                           : waitAfterFailures(failuresSoFar() + 1, m_limits.backoff, m_jitter),
                   describe(response));
}

// What was refused alone may be taken once the server is mended: it is tried again as well.
Step Sender::holdBack(std::string reason, Refused refused)
{
    m_suspects.clear();
    m_refusalsInARow = 0;
    if (refused == Refused::Kept) {
        return {Step::Kind::Failed, m_clock.now(), reason, 0};
    }
    return waitFor(waitAfterFailures(failuresSoFar() + 1, m_limits.slowBackoff, m_jitter), reason);
}

Step Sender::waitFor(std::chrono::nanoseconds time, const std::string &reason)
{
    const Schedule schedule{m_clock.now() + time.count(), failuresSoFar() + 1, time.count()};
    m_outbox.setSchedule(schedule);
    m_memory.schedule = {};
    m_outbox.noteFailure(reason, m_clock.now());
    return {Step::Kind::Failed, schedule.notBefore, reason, 0};
}

Step Sender::split(const Batch &batch, const Response &response)
{
    m_batchRecords = batch.keys.size() / 2;
    return {Step::Kind::Progress, 0, describe(response), 0};
}

Step Sender::suspect(Batch batch, const Response &response, LossReason loss, Refused refused)
{
    batch.payload.clear();
    const std::string reason =
        (batch.isOptOut ? "the withdrawal of consent was refused: " : "") + describe(response);
    if (refused == Refused::Dropped) {
        m_outbox.noteFailure(reason, m_clock.now());
    }
    m_suspects.push_back({std::move(batch), loss, reason});
    const std::int64_t doublings = std::clamp<std::int64_t>(failuresSoFar(), 0, 16);
    const std::size_t allowed =
        std::min(m_limits.batchRecords, m_limits.refusalsInARow << doublings);
    if (++m_refusalsInARow >= allowed) {
        return holdBack(reason, refused);
    }
    return {Step::Kind::Progress, 0, reason, 0};
}

// The user's withdrawal is never given up; it stays behind what the server takes.
std::size_t Sender::dropSuspects()
{
    const auto firstDropped =
        std::stable_partition(m_suspects.begin(), m_suspects.end(),
                              [](const Suspect &suspect) { return suspect.batch.isOptOut; });
    for (auto dropped = firstDropped; dropped != m_suspects.end(); ++dropped) {
        m_outbox.drop(dropped->batch, dropped->loss);
    }
    const auto count = static_cast<std::size_t>(m_suspects.end() - firstDropped);
    m_suspects.erase(firstDropped, m_suspects.end());
    return count;
}

void Sender::postpone() noexcept
{
    Schedule &schedule = m_memory.schedule;
    ++schedule.failures;
    const auto wait = waitAfterFailures(schedule.failures, m_limits.backoff, m_jitter);
    schedule.notBefore = m_clock.now() + wait.count();
    schedule.wait = wait.count();
}

std::int64_t Sender::lastSuspect() const
{
    return m_suspects.empty() ? 0 : m_suspects.back().batch.keys.back().seq;
}

std::int64_t Sender::failuresSoFar() const
{
    return std::max(m_outbox.schedule().failures, m_memory.schedule.failures);
}

} // namespace rui
