// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Migrations.h"

#include <array>
#include <string>

namespace rui {

namespace {

// What is waiting is told from the numbers of the last event, whatever gaps there are between.
// gone:       how many of the numbers up to the highest one are no waiting events
// gone_bytes: how much of the last event's total is the size of events that are gone
// A database may also be in use by a library of version 1, which reads `gaps`.
constexpr const char *countWhatIsGone =
    "ALTER TABLE state ADD COLUMN gone INTEGER NOT NULL DEFAULT 0;"
    "ALTER TABLE state ADD COLUMN gone_bytes INTEGER NOT NULL DEFAULT 0;"
    "UPDATE state SET gaps = 1,"
    " gone = max(floor, coalesce((SELECT max(seq) FROM event), 0)) - (SELECT count(*) FROM event),"
    " gone_bytes = coalesce((SELECT total FROM event ORDER BY seq DESC LIMIT 1), 0)"
    " - (SELECT coalesce(sum(size), 0) FROM event);"
    "CREATE TRIGGER event_is_gone AFTER DELETE ON event BEGIN"
    " UPDATE state SET gaps = 1, gone = gone + 1, gone_bytes ="
    " CASE WHEN EXISTS(SELECT 1 FROM event WHERE seq > OLD.seq) THEN gone_bytes + OLD.size"
    // The totals go on from the event that is the last one now, from 0 when there is none.
    " ELSE gone_bytes - (OLD.total - OLD.size)"
    " + coalesce((SELECT total FROM event ORDER BY seq DESC LIMIT 1), 0) END; END;"
    "CREATE TRIGGER notice_takes_a_number AFTER INSERT ON notice BEGIN"
    " UPDATE state SET gaps = 1, gone = gone + 1; END;";

// run: the random id of the session that stored the record; empty in what was stored before, and
// in the library's own records
constexpr const char *keepTheRun =
    "ALTER TABLE event ADD COLUMN run TEXT NOT NULL DEFAULT '';"
    "ALTER TABLE notice ADD COLUMN run TEXT NOT NULL DEFAULT '';"
    "ALTER TABLE delivered ADD COLUMN run TEXT NOT NULL DEFAULT '';"
    "DROP VIEW record;"
    "CREATE VIEW record AS"
    " SELECT seq, 'pending' AS state, time, uid, resource, category, name, session, text, run"
    " FROM event UNION ALL"
    " SELECT seq, 'pending', time, uid, resource, category, name, session, text, run"
    " FROM notice UNION ALL"
    " SELECT seq, 'delivered', time, uid, resource, category, name, session, text, run"
    " FROM delivered;";

// withdrawn: the request in the mark that was carried out last; null: no mark is known yet
// erase:     what was deleted is still to be erased; see Erasure.cpp
constexpr const char *rememberWithdrawals =
    "ALTER TABLE state ADD COLUMN withdrawn TEXT;"
    "ALTER TABLE state ADD COLUMN erase INTEGER NOT NULL DEFAULT 0;";

// exported: in delivered, 1 for what was handed over in a file; in state, how many events were
constexpr const char *keepTheHandOver =
    "ALTER TABLE delivered ADD COLUMN exported INTEGER NOT NULL DEFAULT 0;"
    "ALTER TABLE state ADD COLUMN exported INTEGER NOT NULL DEFAULT 0;"
    "DROP VIEW record;"
    "CREATE VIEW record AS"
    " SELECT seq, 'pending' AS state, time, uid, resource, category, name, session, text, run"
    " FROM event UNION ALL"
    " SELECT seq, 'pending', time, uid, resource, category, name, session, text, run"
    " FROM notice UNION ALL"
    " SELECT seq, iif(exported, 'exported', 'delivered'), time, uid, resource, category, name,"
    " session, text, run FROM delivered;";

// server: where the last session that was started delivers to; empty: nowhere; null: none was yet
constexpr const char *keepTheServer = "ALTER TABLE state ADD COLUMN server TEXT;";

// paused: 1 while delivery rests, by ruiPauseDelivery
constexpr const char *keepThePause =
    "ALTER TABLE state ADD COLUMN paused INTEGER NOT NULL DEFAULT 0;";

// failed_at, failure: when a request failed last (nanoseconds since 1970), and why; null: none has
constexpr const char *keepTheLastFailure = "ALTER TABLE state ADD COLUMN failed_at INTEGER;"
                                           "ALTER TABLE state ADD COLUMN failure TEXT;";

// What the age of events is told from beside the clock, see ClockMarks.h. A row is a mark.
// seq:        the highest number that was given by then
// boot:       the start of the machine
// since_boot: nanoseconds since that
// uptime:     nanoseconds since the first mark, as far as the machine was seen running
// In state, wait: what not_before was computed from (nanoseconds); when it is further away, the
// clock was set back.
constexpr const char *distrustTheClock =
    "CREATE TABLE clock_mark(id INTEGER PRIMARY KEY, seq INTEGER NOT NULL, boot TEXT NOT NULL,"
    "since_boot INTEGER NOT NULL, uptime INTEGER NOT NULL) STRICT;"
    "ALTER TABLE state ADD COLUMN wait INTEGER NOT NULL DEFAULT 0;";

// Each leads from one version to the next; the first one to version 2. What stands here has run
// on users' machines: add to its end only.
constexpr std::array migrations = {countWhatIsGone,    keepTheRun,      rememberWithdrawals,
                                   keepTheHandOver,    keepTheServer,   keepThePause,
                                   keepTheLastFailure, distrustTheClock};

constexpr std::int64_t firstVersion = 1;

std::int64_t versionOf(const Database &database)
{
    return database.integer("PRAGMA user_version");
}

} // namespace

std::int64_t newestSchemaVersion()
{
    return firstVersion + static_cast<std::int64_t>(migrations.size());
}

void migrateSchema(Database &database)
{
    if (versionOf(database) == newestSchemaVersion()) {
        return;
    }
    Transaction transaction(database);
    for (std::int64_t version = versionOf(database); version < newestSchemaVersion(); ++version) {
        database.execute(migrations.at(static_cast<std::size_t>(version - firstVersion)));
        database.execute("PRAGMA user_version = " + std::to_string(version + 1));
    }
    transaction.commit();
}

} // namespace rui
