// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/ClockMarks.h"

#include "core/Failure.h"
#include "store/Notices.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace rui {

namespace {

std::int64_t maxAge(const Limits &limits)
{
    return std::chrono::nanoseconds(limits.maxAge).count();
}

// Where time has got to since the last mark.
struct Progress
{
    bool isThisBoot = false;
    std::int64_t sinceMark = 0;
    std::int64_t uptime = 0;
};

std::optional<Progress> progress(const Database &database, const Clock &clock)
{
    Statement last = database.prepare(
        "SELECT boot = ?1, since_boot, uptime FROM clock_mark ORDER BY id DESC LIMIT 1");
    const std::string boot = clock.boot();
    if (!last.bind(1, boot).step()) {
        return std::nullopt;
    }
    Progress result;
    result.isThisBoot = last.integer(0) != 0;
    // A mark of an earlier start is at least as old as this start.
    const std::int64_t from = result.isThisBoot ? last.integer(1) : 0;
    result.sinceMark = std::max<std::int64_t>(0, clock.sinceBoot() - from);
    result.uptime = last.integer(2) + result.sinceMark;
    return result;
}

bool isDue(const std::optional<Progress> &progress)
{
    return !progress || !progress->isThisBoot || progress->sinceMark >= clockMarkEvery;
}

void insertMark(const Database &database, const Clock &clock, std::int64_t uptime)
{
    const std::string boot = clock.boot();
    database.prepare("INSERT INTO clock_mark(seq, boot, since_boot, uptime) VALUES(?1, ?2, ?3, ?4)")
        .bind(1, nextSequence(database) - 1)
        .bind(2, boot)
        .bind(3, clock.sinceBoot())
        .bind(4, uptime)
        .run();
}

// The youngest of those that are old enough says it for all before it.
void forgetMarks(const Database &database, std::int64_t expired)
{
    database
        .prepare("DELETE FROM clock_mark WHERE id <"
                 " (SELECT max(id) FROM clock_mark WHERE uptime < ?1)")
        .bind(1, expired)
        .run();
}

void makeMark(Database &database, const Clock &clock, const Limits &limits)
{
    Transaction transaction(database);
    const auto now = progress(database, clock);
    if (isDue(now)) {
        const std::int64_t uptime = now ? now->uptime : 0;
        insertMark(database, clock, uptime);
        forgetMarks(database, uptime - maxAge(limits));
    }
    transaction.commit();
}

} // namespace

void markClock(Database &database, const Clock &clock, const Limits &limits)
{
    if (!isDue(progress(database, clock))) {
        return;
    }
    try {
        makeMark(database, clock, limits);
    } catch (const Failure &failure) {
        if (failure.result() != RUI_FULL && failure.result() != RUI_BUSY) {
            throw;
        }
    }
}

KnownAges knownAges(const Database &database, const Clock &clock, const Limits &limits)
{
    const auto now = progress(database, clock);
    Statement expired =
        database.prepare("SELECT coalesce(max(seq), 0) FROM clock_mark WHERE uptime < ?1");
    expired.bind(1, (now ? now->uptime : 0) - maxAge(limits)).step();
    Statement young = database.prepare("SELECT coalesce(min(seq), ?3 - 1) + 1 FROM clock_mark"
                                       " WHERE boot = ?1 AND since_boot >= ?2");
    const std::string boot = clock.boot();
    young.bind(1, boot).bind(2, clock.sinceBoot() - maxAge(limits));
    young.bind(3, std::numeric_limits<std::int64_t>::max()).step();
    return {expired.integer(0), young.integer(0)};
}

} // namespace rui
