// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Schema.h"

#include "store/Migrations.h"
#include "store/SqliteError.h"

namespace rui {

namespace {

// "RUI1" in the file's header says whose database it is.
constexpr std::int64_t applicationId = 0x52554931;

// What an event, a notice and a delivered record have in common.
constexpr const char *recordColumns = "time INTEGER NOT NULL, uid TEXT NOT NULL,"
                                      "resource INTEGER NOT NULL, category TEXT NOT NULL,"
                                      "name TEXT NOT NULL, session TEXT NOT NULL, text TEXT";

// epoch:      raised by every opt-out; an event is stored only under the epoch of its session
// client:     the client id; null before the first session and after an opt-out
// floor:      the highest number that a record outside of `event` has or had
// gaps:       of version 1: 1 when numbers inside `event` may be missing
// not_before: no request is sent before this time (nanoseconds since 1970)
// failures:   failed tries in a row
constexpr const char *stateTable = "CREATE TABLE state("
                                   "id INTEGER PRIMARY KEY CHECK(id = 1), epoch INTEGER NOT NULL,"
                                   "client TEXT, floor INTEGER NOT NULL, gaps INTEGER NOT NULL,"
                                   "not_before INTEGER NOT NULL, failures INTEGER NOT NULL,"
                                   "delivered INTEGER NOT NULL) STRICT;"
                                   "INSERT INTO state VALUES(1, 1, NULL, 0, 0, 0, 0, 0);";

constexpr const char *resourceTable =
    "CREATE TABLE resource(id INTEGER PRIMARY KEY, client TEXT NOT NULL, product TEXT NOT NULL,"
    "application TEXT NOT NULL, edition TEXT NOT NULL, language TEXT NOT NULL,"
    "version TEXT NOT NULL, build TEXT NOT NULL,"
    "UNIQUE(client, product, application, edition, language, version, build)) STRICT;";

// lost: not told to the collector yet; told: told in an earlier loss record
constexpr const char *lossTable = "CREATE TABLE loss(reason TEXT PRIMARY KEY,"
                                  "lost INTEGER NOT NULL, told INTEGER NOT NULL) STRICT;";

constexpr const char *recordView =
    "CREATE VIEW record AS"
    " SELECT seq, 'pending' AS state, time, uid, resource, category, name, session, text"
    " FROM event UNION ALL"
    " SELECT seq, 'pending', time, uid, resource, category, name, session, text"
    " FROM notice UNION ALL"
    " SELECT seq, 'delivered', time, uid, resource, category, name, session, text"
    " FROM delivered;";

// size stands before the long columns, so that summing it up reads no text. total is the sum of
// size up to and with this row: a difference of two totals is the size of what lies between.
std::string recordTables()
{
    return std::string("CREATE TABLE event(seq INTEGER PRIMARY KEY, size INTEGER NOT NULL,"
                       "total INTEGER NOT NULL,")
           + recordColumns + ") STRICT;" + "CREATE TABLE notice(seq INTEGER PRIMARY KEY,"
           + "kind TEXT NOT NULL," + recordColumns + ") STRICT;"
           + "CREATE TABLE delivered(seq INTEGER PRIMARY KEY, delivered INTEGER NOT NULL,"
           + "size INTEGER NOT NULL," + recordColumns + ") STRICT;";
}

void checkState(const Database &database)
{
    if (database.integer("SELECT count(*) FROM sqlite_schema WHERE name IN ('state', 'resource',"
                         " 'loss', 'event', 'notice', 'delivered', 'record')")
            != 7
        || database.integer("SELECT count(*) FROM state") != 1) {
        throw SqliteError(SQLITE_CORRUPT, "a table is missing");
    }
}

} // namespace

bool hasSchema(const Database &database)
{
    if (database.integer("PRAGMA schema_version") == 0) {
        return false;
    }
    if (database.integer("PRAGMA application_id") != applicationId) {
        throw Failure(RUI_UNSUPPORTED, "the database belongs to another program");
    }
    const std::int64_t version = database.integer("PRAGMA user_version");
    if (version > newestSchemaVersion()) {
        throw Failure(RUI_UNSUPPORTED, "the database has the newer version "
                                           + std::to_string(version) + "; update the program");
    }
    checkState(database);
    return true;
}

void createSchema(Database &database)
{
    Transaction transaction(database);
    database.execute(std::string(stateTable) + resourceTable + lossTable + recordTables()
                     + recordView + "PRAGMA application_id = " + std::to_string(applicationId)
                     + "; PRAGMA user_version = 1");
    transaction.commit();
    migrateSchema(database);
}

} // namespace rui
