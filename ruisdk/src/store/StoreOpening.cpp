// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/StoreOpening.h"

#include "core/Clock.h"
#include "store/Consent.h"
#include "store/Erasure.h"
#include "store/FileLock.h"
#include "store/Losses.h"
#include "store/Migrations.h"
#include "store/PrivateFiles.h"
#include "store/Readability.h"
#include "store/Schema.h"
#include "store/SetAside.h"
#include "store/Shrinking.h"
#include "store/SqliteError.h"

#include <filesystem>
#include <optional>

namespace rui {

namespace {

#ifdef RUI_SYNC_EVERY_COMMIT
constexpr bool syncByBuild = true;
#else
constexpr bool syncByBuild = false;
#endif

// Callers never checkpoint: a checkpoint takes ten times as long as storing an event, and the
// worker does it. The page size stays at SQLite's default.
void configure(Database &database, const OpeningOptions &options)
{
    database.execute("PRAGMA journal_mode = WAL");
    database.execute(options.syncEveryCommit || syncByBuild ? "PRAGMA synchronous = FULL"
                                                            : "PRAGMA synchronous = NORMAL");
    database.execute("PRAGMA wal_autocheckpoint = 0");
    database.watchJournal();
}

void verifyContent(const Database &database)
{
    Statement check = database.prepare("PRAGMA quick_check(1)");
    if (!check.step() || check.text(0) != "ok") {
        throw SqliteError(SQLITE_CORRUPT, "quick_check");
    }
}

Database openChecked(const StorePaths &paths, const OpeningOptions &options,
                     const std::shared_ptr<BusyLimit> &busyLimit)
{
    makePrivateFile(paths.database());
    Database database(paths.database(), Database::Access::ReadWrite, busyLimit);
    // Before the journal mode, which would be written to somebody else's database.
    const bool exists = hasSchema(database);
    if (!exists) {
        allowShrinking(database);
    }
    configure(database, options);
    if (exists) {
        migrateSchema(database);
    } else {
        createSchema(database);
    }
    if (options.verify) {
        verifyContent(database);
    }
    return database;
}

// Nothing when SQLite finds the database damaged.
std::optional<Database> openUnlessDamaged(const StorePaths &paths, const OpeningOptions &options,
                                          const std::shared_ptr<BusyLimit> &busyLimit)
{
    try {
        return openChecked(paths, options, busyLimit);
    } catch (const SqliteError &error) {
        if (!error.isDamage()) {
            throw;
        }
        return std::nullopt;
    }
}

// The caller holds the opening lock.
Database openOrReplace(const StorePaths &paths, const OpeningOptions &options,
                       const std::shared_ptr<BusyLimit> &busyLimit)
{
    if (auto database = openUnlessDamaged(paths, options, busyLimit)) {
        return std::move(*database);
    }
    // SQLite also calls it corruption when the device fails to give a page. Only what can be read
    // whole, and is found damaged a second time, is damaged.
    requireReadable(paths);
    OpeningOptions thorough = options;
    thorough.verify = true;
    if (auto database = openUnlessDamaged(paths, thorough, busyLimit)) {
        return std::move(*database);
    }
    setAside(paths);
    Database database = openChecked(paths, options, busyLimit);
    addLoss(database, LossReason::Damaged, 1);
    return database;
}

// What others left undone comes before anything else.
void settle(Database &database, const StorePaths &paths)
{
    WithdrawalMark mark(paths.consent());
    settleWithdrawal(database, mark, systemClock().now());
    finishErasure(database);
}

} // namespace

Failure noEventsIn(const StorePaths &paths)
{
    return Failure(RUI_STORAGE, paths.directory()
                                    + ": no usage events are stored here; name the directory that"
                                      " holds usage-events.sqlite");
}

Database openStore(const StorePaths &paths, const OpeningOptions &options,
                   const std::shared_ptr<BusyLimit> &busyLimit)
{
    // Before anything is created.
    const ProcessUse use;
    if (options.create) {
        makePrivateDirectory(paths.directory());
    } else if (!std::filesystem::exists(paths.database())) {
        throw noEventsIn(paths);
    }
    FileLock opening(paths.openingLock());
    opening.lock(*busyLimit);
    requirePlainFiles(paths);
    Database database = openOrReplace(paths, options, busyLimit);
    settle(database, paths);
    return database;
}

} // namespace rui
