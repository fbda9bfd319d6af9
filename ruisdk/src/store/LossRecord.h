// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>

namespace rui {

// Makes a record of the losses that were not told yet, for delivery under the client id of now;
// none while there is no client id. One transaction. Throws SqliteError.
void addLossRecord(Database &database, std::int64_t now);

// Counts the losses of this record as not told again; nothing when it is not a loss record. Part
// of the caller's transaction. Throws SqliteError.
void restoreLosses(Database &database, std::int64_t seq);

} // namespace rui
