// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Limits.h"
#include "delivery/OtlpPayload.h"
#include "store/Losses.h"
#include "store/WithdrawalMark.h"

#include <map>

namespace rui {

// The records of one request.
struct Batch
{
    // Numbers are given anew in a database that replaces a damaged one; identifiers are not.
    struct Key
    {
        std::int64_t seq = 0;
        std::string uid;
    };

    // Opt-outs travel alone, before anything else.
    bool isOptOut = false;
    std::vector<Key> keys;
    std::string payload;
};

// When the next request may be sent.
struct Schedule
{
    std::int64_t notBefore = 0; // nanoseconds since 1970
    std::int64_t failures = 0;  // failed tries in a row
    std::int64_t wait = 0;      // nanoseconds that lay before notBefore when it was set
};

// What waits for delivery, and what becomes of it. Used by one thread. Throws SqliteError.
class Outbox
{
public:
    Outbox(Database &database, Limits limits);

    // The oldest records above `after`. Fewer than asked for when the payload would become too
    // long, at least one when anything waits. Losses that were not told yet join a batch of events.
    // Throws as requireConsent() does.
    Batch next(std::size_t maxRecords, std::size_t maxBytes, std::int64_t now,
               std::int64_t after = 0);

    // Throws Failure with RUI_OPTED_OUT while a withdrawal of consent is not carried out: nothing
    // may leave this machine.
    void requireConsent();

    bool hasRecords() const;
    bool hasOptOut() const;
    std::int64_t pending() const;

    Schedule schedule() const;
    void setSchedule(const Schedule &schedule);

    // Keeps why a request failed, for who asks later.
    void noteFailure(const std::string &reason, std::int64_t now);

    // The batch arrived, but for so many of its records. Clears the schedule.
    void settle(const Batch &batch, std::int64_t rejected, std::int64_t now);

    // The batch was handed over in a file, which says nothing about the server: the schedule stays.
    void settleExported(const Batch &batch, std::int64_t now);

    // The batch will never arrive: its events are counted as lost. Clears the schedule.
    void drop(const Batch &batch, LossReason reason);

private:
    Batch read(const std::string &sql, std::size_t maxRecords, std::size_t maxBytes,
               std::int64_t after);
    const Resource &resource(std::int64_t id);
    void noteLosses(std::int64_t now);
    void keepDelivered(const Batch &batch, std::int64_t now, bool exported);
    void trimDelivered();
    void clearSchedule();
    std::int64_t remove(const Batch &batch);

    Database &m_database;
    WithdrawalMark m_mark;
    const Limits m_limits;
    std::map<std::int64_t, Resource> m_resources;
};

} // namespace rui
