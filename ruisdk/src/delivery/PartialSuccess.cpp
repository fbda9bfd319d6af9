// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/PartialSuccess.h"

#include "store/Database.h"
#include "store/SqliteError.h"

#include <algorithm>

namespace rui {

namespace {

// The standard's JSON writes a 64-bit integer as a string; some servers write a number.
constexpr const char *sql =
    "SELECT CASE WHEN json_valid(?1) THEN"
    " CAST(json_extract(?1, '$.partialSuccess.rejectedLogRecords') AS INTEGER) END";

} // namespace

// SQLite is the JSON reader that is at hand.
std::int64_t rejectedRecords(const std::string &body)
{
    try {
        const Database memory(":memory:", Database::Access::ReadWrite,
                              std::make_shared<BusyLimit>(std::chrono::milliseconds(0)));
        Statement query = memory.prepare(sql);
        query.bind(1, body).step();
        return std::max<std::int64_t>(0, query.integer(0));
    } catch (const SqliteError &) {
        return 0;
    }
}

} // namespace rui
