// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Sender.h"

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
    return response.status == 0 ? response.error
                                : "the server answered " + std::to_string(response.status);
}

std::string describeRejected(std::int64_t count)
{
    return count == 0 ? std::string() : "the server rejected " + std::to_string(count);
}

} // namespace

Sender::Sender(Database &database, const std::string &lockPath, Transport &transport,
               const Clock &clock, Limits limits, DeliveryLimits deliveryLimits, Jitter jitter)
    : m_lock(lockPath)
    , m_transport(transport)
    , m_clock(clock)
    , m_limits(deliveryLimits)
    , m_jitter(std::move(jitter))
    , m_outbox(database, limits)
    , m_batchRecords(deliveryLimits.batchRecords)
{}

std::int64_t Sender::dueTime() const
{
    const std::int64_t due = m_outbox.schedule().notBefore;
    // Further away than anything schedules: the clock was set back meanwhile.
    return due > m_clock.now() + m_limits.maxRetryAfter.count() ? 0 : due;
}

Step Sender::step()
{
    const std::int64_t due = dueTime();
    if (due > m_clock.now() && m_outbox.hasRecords()) {
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
    if (!m_outbox.hasRecords()) {
        return {};
    }
    if (!m_lock.tryLock()) {
        return {Step::Kind::OtherSends, m_clock.now() + otherSenderWait, {}, 0};
    }
    const Unlock unlock(m_lock);
    return send(refused);
}

// Everything is read anew for each try: an opt-out may have come in between.
Step Sender::send(Refused refused)
{
    const Batch batch = m_outbox.next(m_batchRecords, m_limits.batchBytes, m_clock.now());
    if (batch.seqs.empty()) {
        return {};
    }
    const Response response = m_transport.post(gzip(batch.payload));
    if (response.cancelled) {
        return {Step::Kind::Failed, m_clock.now(), "cancelled", 0};
    }
    return apply(batch, response, refused);
}

Step Sender::apply(const Batch &batch, const Response &response, Refused refused)
{
    const Verdict verdict = verdictOf(response);
    switch (verdict.kind) {
    case Verdict::Kind::Delivered:
        m_outbox.settle(batch, verdict.rejected, m_clock.now());
        m_batchRecords = std::min(m_limits.batchRecords, m_batchRecords * 2);
        return {Step::Kind::Progress, 0, describeRejected(verdict.rejected), batch.seqs.size()};
    case Verdict::Kind::Split:
        if (batch.seqs.size() > 1) {
            return split(batch);
        }
        break;
    case Verdict::Kind::Refused:
        break;
    case Verdict::Kind::Retry:
        return retry(response);
    }
    if (refused == Refused::Kept) {
        return {Step::Kind::Failed, m_clock.now(), describe(response), 0};
    }
    const bool isTooLarge = verdict.kind == Verdict::Kind::Split;
    return refuse(batch, response, isTooLarge ? LossReason::RequestSize : LossReason::Rejected);
}

Step Sender::retry(const Response &response)
{
    Schedule schedule = m_outbox.schedule();
    ++schedule.failures;
    const auto asked = parseRetryAfter(response.retryAfter, m_clock.now(), m_limits.maxRetryAfter);
    // A time that has passed, be it for a clock that is ahead of the server's, is no leave to ask
    // without a pause.
    const bool isAsked = asked && asked->count() > 0;
    const auto wait = isAsked ? *asked : backoffAfter(schedule.failures, m_limits, m_jitter);
    schedule.notBefore = m_clock.now() + wait.count();
    m_outbox.setSchedule(schedule);
    return {Step::Kind::Failed, schedule.notBefore, describe(response), 0};
}

Step Sender::split(const Batch &batch)
{
    m_batchRecords = batch.seqs.size() / 2;
    return {Step::Kind::Progress, 0, "the server answered 413", 0};
}

Step Sender::refuse(const Batch &batch, const Response &response, LossReason reason)
{
    // The user's withdrawal is never given up.
    if (batch.isOptOut) {
        return retry(response);
    }
    m_outbox.drop(batch, reason);
    return {Step::Kind::Progress, 0, describe(response), batch.seqs.size()};
}

} // namespace rui
