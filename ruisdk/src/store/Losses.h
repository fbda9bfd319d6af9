// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

namespace rui {

// Why an event never reaches the collector.
enum class LossReason {
    MaxEvents,      // pushed out: too many undelivered events
    MaxBytes,       // pushed out: too many bytes of them
    MaxAge,         // too old
    EventSize,      // refused: one event above the limit
    Storage,        // refused: the database could not be written
    Damaged,        // a database was set aside, with what was in it
    Rejected,       // the collector refused the request
    RequestSize,    // the collector refused a single event as too large
    PartlyRejected, // the collector took a request, but not all of its events
    Purged          // the user deleted them
};

// The name that stands in the database and in a loss record.
const char *lossReasonName(LossReason reason);

// Counts lost events; part of the caller's transaction if there is one. Throws SqliteError.
void addLoss(Database &database, LossReason reason, std::int64_t count);

} // namespace rui
