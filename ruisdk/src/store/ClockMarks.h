// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "store/Database.h"

namespace rui {

// The machine's clock may be set at any time, so it alone does not tell how old an event is. From
// time to time a mark is made, which says how far the numbers of the events had got how long after
// the machine's start: what has a higher number is younger than the mark, all the rest is at least
// as old.

// An hour apart is exact enough for an age of days.
constexpr std::int64_t clockMarkEvery = 3600 * nanosecondsPerSecond;

// Makes a mark unless the last one is of this start of the machine and not old enough, and forgets
// those that no question needs any longer. To be called before the first event of a session, and
// whenever the age is looked at. One transaction. A full disk and a lock are no errors: then the
// clock counts for more. Throws SqliteError.
void markClock(Database &database, const Clock &clock, const Limits &limits);

// What the marks know of the events' age. Between the two numbers it is the clock that counts.
struct KnownAges
{
    std::int64_t lastExpired = 0; // up to this number all are too old
    std::int64_t firstYoung = 0;  // from this number on none is
};

// Throws SqliteError.
KnownAges knownAges(const Database &database, const Clock &clock, const Limits &limits);

} // namespace rui
