// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/StoreOpening.h"

#include "core/Clock.h"
#include "store/Consent.h"
#include "store/Erasure.h"
#include "store/FileLock.h"
#include "store/Migrations.h"
#include "store/PrivateFiles.h"
#include "store/Readability.h"
#include "store/Salvage.h"
#include "store/Schema.h"
#include "store/SetAside.h"
#include "store/Shrinking.h"
#include "store/SqliteError.h"
#include "store/SystemError.h"

#include <cerrno>
#include <cstdio>
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
    Statement check = database.prepare("PRAGMA integrity_check(1)");
    if (!check.step() || check.text(0) != "ok") {
        throw SqliteError(SQLITE_CORRUPT, "integrity_check");
    }
    Statement texts = database.prepare("SELECT uid, category, name, session, text FROM record");
    while (texts.step()) {
        if (!texts.isSound(5)) {
            throw SqliteError(SQLITE_CORRUPT, "a text was overwritten");
        }
    }
    if (database.integer("SELECT EXISTS(SELECT 1 FROM event WHERE resource NOT IN"
                         " (SELECT id FROM resource))")
        != 0) {
        throw SqliteError(SQLITE_CORRUPT, "the description of a product is missing");
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

// Complete, or not there at all: a full disk or a crash leaves the damaged database where it is,
// for the next one to try again.
Salvaged makeReplacement(const StorePaths &paths, const std::optional<Database> &damaged)
{
    for (const char *ending : {"", "-journal"}) {
        std::remove((paths.replacement() + ending).c_str());
    }
    makePrivateFile(paths.replacement());
    Database database(paths.replacement(), Database::Access::ReadWrite,
                      std::make_shared<BusyLimit>(std::chrono::milliseconds(0)));
    allowShrinking(database);
    createSchema(database);
    return salvage(database, damaged);
}

void putInPlace(const StorePaths &paths)
{
    if (std::rename(paths.replacement().c_str(), paths.database().c_str()) != 0) {
        throw SystemError(paths.replacement(), errno);
    }
}

void replaceDamaged(const StorePaths &paths, const std::shared_ptr<BusyLimit> &busyLimit)
{
    // Until the new one is in place: a writer who waits meanwhile sees that the file has moved.
    const auto damaged = openDamaged(paths.database(), busyLimit);
    const Salvaged salvaged = makeReplacement(paths, damaged);
    const std::string name = setAside(paths);
    putInPlace(paths);
    std::fprintf(stderr,
                 "ruiSDK: %s is not a usable database; set aside as %s, a new one is begun with %s"
                 " events that could be read\n",
                 paths.database().c_str(), name.c_str(), std::to_string(salvaged.saved).c_str());
}

// A crash came between setting aside and putting in place.
void finishReplacement(const StorePaths &paths)
{
    if (!std::filesystem::exists(paths.database())
        && std::filesystem::exists(paths.replacement())) {
        putInPlace(paths);
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
    replaceDamaged(paths, busyLimit);
    return openChecked(paths, options, busyLimit);
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
    } else if (!std::filesystem::exists(paths.database())
               && !std::filesystem::exists(paths.replacement())) {
        throw noEventsIn(paths);
    }
    FileLock opening(paths.openingLock());
    opening.lock(*busyLimit);
    requirePlainFiles(paths);
    finishReplacement(paths);
    Database database = openOrReplace(paths, options, busyLimit);
    settle(database, paths);
    return database;
}

} // namespace rui
