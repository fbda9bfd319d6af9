// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Quota.h"

#include "store/ClockMarks.h"
#include "store/Losses.h"
#include "store/Notices.h"

#include <string>

namespace rui {

namespace {

struct Eviction
{
    std::int64_t last = 0;
    std::int64_t forNumber = 0;
    std::int64_t forSize = 0;
};

// Counts from the oldest on what has to go.
Eviction planEviction(const Database &database, Occupancy occupancy, const Limits &limits)
{
    Eviction eviction;
    Statement oldest = database.prepare("SELECT seq, size FROM event ORDER BY seq");
    while (exceeds(occupancy, limits) && oldest.step()) {
        eviction.last = oldest.integer(0);
        ++(occupancy.events > limits.maxEvents ? eviction.forNumber : eviction.forSize);
        --occupancy.events;
        occupancy.bytes -= oldest.integer(1);
    }
    return eviction;
}

void count(Database &database, LossReason reason, std::int64_t lost)
{
    if (lost > 0) {
        addLoss(database, reason, lost);
    }
}

// The statement with the condition for what is too old.
Statement aboutExpired(const Database &database, const std::string &sql, const KnownAges &ages,
                       std::int64_t oldest)
{
    Statement statement =
        database.prepare(sql + " FROM event WHERE seq <= ?1 OR (seq < ?2 AND time < ?3)");
    statement.bind(1, ages.lastExpired).bind(2, ages.firstYoung).bind(3, oldest);
    return statement;
}

std::int64_t countExpired(const Database &database, const KnownAges &ages, std::int64_t oldest)
{
    Statement query = aboutExpired(database, "SELECT count(*)", ages, oldest);
    query.step();
    return query.integer(0);
}

} // namespace

Occupancy occupancyOf(const Database &database)
{
    Statement query =
        database.prepare("SELECT max(floor, coalesce((SELECT max(seq) FROM event), 0)) - gone,"
                         " coalesce((SELECT total FROM event ORDER BY seq DESC LIMIT 1), 0) - "
                         "gone_bytes FROM state");
    query.step();
    return {query.integer(0), query.integer(1)};
}

bool exceeds(const Occupancy &occupancy, const Limits &limits)
{
    return occupancy.events > limits.maxEvents || occupancy.bytes > limits.maxBytes;
}

void enforceQuota(Database &database, const Limits &limits)
{
    Transaction transaction(database);
    const Occupancy occupancy = occupancyOf(database);
    if (exceeds(occupancy, limits)) {
        const Eviction eviction = planEviction(database, occupancy, limits);
        keepNumbers(database);
        database.prepare("DELETE FROM event WHERE seq <= ?1").bind(1, eviction.last).run();
        count(database, LossReason::MaxEvents, eviction.forNumber);
        count(database, LossReason::MaxBytes, eviction.forSize);
    }
    transaction.commit();
}

void dropExpired(Database &database, const Limits &limits, const Clock &clock)
{
    markClock(database, clock, limits);
    const KnownAges ages = knownAges(database, clock, limits);
    const std::int64_t oldest = clock.now() - std::chrono::nanoseconds(limits.maxAge).count();
    if (countExpired(database, ages, oldest) == 0) {
        return;
    }
    Transaction transaction(database);
    count(database, LossReason::MaxAge, countExpired(database, ages, oldest));
    keepNumbers(database);
    aboutExpired(database, "DELETE", ages, oldest).run();
    transaction.commit();
}

} // namespace rui
