// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "store/Database.h"
#include "store/EventInsert.h"

namespace rui {

// What is waiting now; reads no more than two rows. Throws SqliteError.
Occupancy occupancyOf(const Database &database);

bool exceeds(const Occupancy &occupancy, const Limits &limits);

// Deletes the oldest events until the number and the size of the undelivered ones keep to the
// limits, and counts them as lost; one transaction. Throws SqliteError.
void enforceQuota(Database &database, const Limits &limits);

// Deletes events that are too old, and counts them as lost; one transaction. What was stored since
// the machine was started is judged by the time since then, the rest by the clock. Marks the clock.
// Throws SqliteError.
void dropExpired(Database &database, const Limits &limits, const Clock &clock);

} // namespace rui
