// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Quota.h"

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

std::int64_t countOlder(const Database &database, std::int64_t time)
{
    Statement query = database.prepare("SELECT count(*) FROM event WHERE time < ?1");
    query.bind(1, time).step();
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

void dropExpired(Database &database, const Limits &limits, std::int64_t now)
{
    const std::int64_t oldest = now - std::chrono::nanoseconds(limits.maxAge).count();
    if (countOlder(database, oldest) == 0) {
        return;
    }
    Transaction transaction(database);
    count(database, LossReason::MaxAge, countOlder(database, oldest));
    keepNumbers(database);
    database.prepare("DELETE FROM event WHERE time < ?1").bind(1, oldest).run();
    transaction.commit();
}

} // namespace rui
