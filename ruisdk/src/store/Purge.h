// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>

namespace rui {

// How many records were deleted.
struct Purged
{
    std::int64_t pending = 0;
    std::int64_t delivered = 0;
    // False: somebody reads; the bytes are erased when that has ended.
    bool isErased = false;
};

// Deletes every event, delivered or not, and erases it. Undelivered ones are
// counted as lost. An opt-out that waits for delivery stays. One transaction. Throws SqliteError.
Purged purge(Database &database);

} // namespace rui
