// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Erasure.h"

#include "store/SetAside.h"
#include "store/SqliteError.h"

namespace rui {

namespace {

// What state.erase says.
enum class Stage { Nothing, Rebuild, EmptyJournal };

Stage stageOf(const Database &database)
{
    return static_cast<Stage>(database.integer("SELECT erase FROM state"));
}

void setStage(Database &database, Stage stage)
{
    database.prepare("UPDATE state SET erase = ?1").bind(1, static_cast<std::int64_t>(stage)).run();
}

// A new database is built of what is left; the pages of the old one, be they free or half empty,
// are overwritten or cut off by the checkpoint.
void rebuild(Database &database)
{
    // Not in a file outside of the directory.
    database.execute("PRAGMA temp_store = MEMORY; VACUUM");
}

bool emptyJournal(const Database &database)
{
    const int code = sqlite3_wal_checkpoint_v2(database.handle(), nullptr,
                                               SQLITE_CHECKPOINT_TRUNCATE, nullptr, nullptr);
    if (code != SQLITE_OK && (code & 0xFF) != SQLITE_BUSY) {
        throw SqliteError(database.handle(), "checkpoint");
    }
    return code == SQLITE_OK;
}

class WithoutWaiting
{
public:
    explicit WithoutWaiting(const Database &database)
        : m_database(database)
    {
        sqlite3_busy_handler(database.handle(), nullptr, nullptr);
    }
    ~WithoutWaiting()
    {
        m_database.waitForLocks();
    }
    WithoutWaiting(const WithoutWaiting &) = delete;
    WithoutWaiting &operator=(const WithoutWaiting &) = delete;

private:
    const Database &m_database;
};

class WithoutTriggers
{
public:
    explicit WithoutTriggers(const Database &database)
        : m_handle(database.handle())
    {
        sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr);
    }
    ~WithoutTriggers()
    {
        sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 1, nullptr);
    }
    WithoutTriggers(const WithoutTriggers &) = delete;
    WithoutTriggers &operator=(const WithoutTriggers &) = delete;

private:
    sqlite3 *m_handle;
};

bool erase(Database &database)
{
    removeSetAside(database.path());
    if (stageOf(database) == Stage::Rebuild) {
        rebuild(database);
        setStage(database, Stage::EmptyJournal);
    }
    const bool isDone = emptyJournal(database);
    if (isDone) {
        setStage(database, Stage::Nothing);
    }
    return isDone;
}

} // namespace

void deleteAllEvents(Database &database)
{
    const WithoutTriggers withoutTriggers(database);
    const std::int64_t overwrites = database.integer("PRAGMA secure_delete");
    database.execute("PRAGMA secure_delete = OFF");
    database.execute("UPDATE state SET floor = highest.seq, gone = highest.seq, gone_bytes = 0 FROM"
                     " (SELECT max(floor, coalesce((SELECT max(seq) FROM event), 0)) AS seq"
                     " FROM state) AS highest;"
                     "DELETE FROM event; DELETE FROM delivered");
    database.execute("PRAGMA secure_delete = " + std::to_string(overwrites));
}

void requestErasure(Database &database)
{
    setStage(database, Stage::Rebuild);
}

bool finishErasure(Database &database)
{
    if (stageOf(database) == Stage::Nothing) {
        return true;
    }
    const WithoutWaiting withoutWaiting(database);
    try {
        return erase(database);
    } catch (const SqliteError &error) {
        if (error.result() != RUI_BUSY) {
            throw;
        }
        return false;
    }
}

} // namespace rui
