// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Shrinking.h"

#include <filesystem>
#include <string>

namespace rui {

namespace {

constexpr std::int64_t incremental = 2; // what SQLite calls it

// Of a database of an earlier version, whose pages cannot be moved one by one. Holds up writers for
// as long as it takes to write what is left, which must not be much.
bool rebuild(Database &database, const Limits &limits, std::int64_t free)
{
    const std::int64_t used = database.integer("PRAGMA page_count") - free;
    if (used <= limits.quickRebuildPages) {
        allowShrinking(database);
        database.execute("PRAGMA temp_store = MEMORY; VACUUM");
    }
    return false;
}

} // namespace

void allowShrinking(Database &database)
{
    database.execute("PRAGMA auto_vacuum = INCREMENTAL");
}

bool shrinkByOneStep(Database &database, const Limits &limits)
{
    const std::int64_t free = database.integer("PRAGMA freelist_count");
    if (free <= limits.freePagesKept) {
        return false;
    }
    if (database.integer("PRAGMA auto_vacuum") != incremental) {
        return rebuild(database, limits, free);
    }
    const std::int64_t pages = std::min(free - limits.freePagesKept, limits.pagesOfAStep);
    database.execute("PRAGMA incremental_vacuum(" + std::to_string(pages) + ")");
    return free - pages > limits.freePagesKept;
}

void shrinkJournal(const Database &database, const Limits &limits) noexcept
{
    std::error_code problem;
    const auto size = std::filesystem::file_size(database.path() + "-wal", problem);
    if (problem || size <= limits.idleJournalBytes) {
        return;
    }
    sqlite3_busy_handler(database.handle(), nullptr, nullptr);
    sqlite3_wal_checkpoint_v2(database.handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr,
                              nullptr);
    database.waitForLocks();
}

} // namespace rui
