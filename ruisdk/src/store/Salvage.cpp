// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Salvage.h"

#include "core/Random.h"
#include "store/Losses.h"
#include "store/RowCopy.h"
#include "store/SqliteError.h"

#include <algorithm>
#include <optional>

namespace rui {

namespace {

// Every byte of the damaged database is to stay, so its journal is not moved into it at the end.
void leaveUnchanged(Database &damaged)
{
    sqlite3_db_config(damaged.handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

// False when the table cannot be read at all.
bool tryCopy(const Database &from, Database &to, const std::string &table, const std::string &key,
             std::optional<RowCopy> &copy)
{
    try {
        copy.emplace(from, to, table, key);
    } catch (const SqliteError &) {
        return false;
    }
    copy->run();
    return true;
}

bool copyTable(const Database &from, Database &to, const std::string &table, const std::string &key)
{
    std::optional<RowCopy> copy;
    return tryCopy(from, to, table, key, copy) && !copy->isIncomplete() && copy->copied() > 0;
}

std::optional<std::int64_t> tryInteger(const Database &database, const char *sql)
{
    try {
        return database.integer(sql);
    } catch (const SqliteError &) {
        return std::nullopt;
    }
}

// How many events waited, as far as the numbers that are left tell.
std::optional<std::int64_t> waiting(const Database &damaged, const Database &into)
{
    const auto gone = tryInteger(damaged, "SELECT gone FROM state");
    const auto floor = tryInteger(damaged, "SELECT floor FROM state");
    if (!gone || !floor) {
        return std::nullopt;
    }
    const auto highest = tryInteger(damaged, "SELECT coalesce(max(seq), 0) FROM event");
    const std::int64_t saved = into.integer("SELECT coalesce(max(seq), 0) FROM event");
    return std::max({highest.value_or(saved), saved, *floor}) - *gone;
}

// Without its state, a database that holds events holds those of the consent of now: an opt-out
// deletes them in the same transaction.
void restoreState(Database &into, bool isKnown)
{
    if (!isKnown) {
        into.execute("UPDATE state SET client = (SELECT client FROM resource WHERE id ="
                     " (SELECT resource FROM event ORDER BY seq DESC LIMIT 1))");
    }
    into.execute("UPDATE state SET floor = max(floor,"
                 " coalesce((SELECT max(seq) FROM event), 0),"
                 " coalesce((SELECT max(seq) FROM notice), 0),"
                 " coalesce((SELECT max(seq) FROM delivered), 0));"
                 "UPDATE state SET gaps = 1, gone = floor - (SELECT count(*) FROM event),"
                 " gone_bytes = coalesce((SELECT total FROM event ORDER BY seq DESC LIMIT 1), 0)"
                 " - (SELECT coalesce(sum(size), 0) FROM event)");
}

// Events whose description of the product is lost go on under another one of their client.
void restoreResources(Database &into)
{
    if (into.integer("SELECT EXISTS(SELECT 1 FROM event WHERE resource NOT IN"
                     " (SELECT id FROM resource))")
        == 0) {
        return;
    }
    const std::string fresh = randomUuid();
    into.prepare("UPDATE state SET client = ?1 WHERE client IS NULL").bind(1, fresh).run();
    into.execute("INSERT OR IGNORE INTO resource(client, product, application, edition, language,"
                 " version, build) SELECT state.client, coalesce(product, ''),"
                 " coalesce(application, ''), coalesce(edition, ''), coalesce(language, ''),"
                 " coalesce(version, ''), coalesce(build, '') FROM state LEFT JOIN"
                 " (SELECT * FROM resource ORDER BY id DESC LIMIT 1) ON 1;"
                 "UPDATE event SET resource = (SELECT max(resource.id) FROM resource JOIN state"
                 " USING(client)) WHERE resource NOT IN (SELECT id FROM resource)");
}

Salvaged copyAll(const Database &damaged, Database &into)
{
    into.execute("DELETE FROM state");
    const bool isKnown = copyTable(damaged, into, "state", "id");
    if (into.integer("SELECT count(*) FROM state") == 0) {
        into.execute("INSERT INTO state(id, epoch, floor, gaps, not_before, failures, delivered)"
                     " VALUES(1, 1, 0, 0, 0, 0, 0)");
    }
    copyTable(damaged, into, "loss", "rowid");
    copyTable(damaged, into, "resource", "id");
    copyTable(damaged, into, "notice", "seq");
    copyTable(damaged, into, "delivered", "seq");
    std::optional<RowCopy> events;
    Salvaged result;
    if (tryCopy(damaged, into, "event", "seq", events)) {
        result.saved = events->copied();
    }
    const auto expected = waiting(damaged, into);
    restoreState(into, isKnown);
    restoreResources(into);
    const bool isWhole = events && !events->isIncomplete();
    result.lost = isWhole ? 0 : std::max<std::int64_t>(1, events ? events->missing() : 1);
    if (!isWhole && expected && *expected > result.saved) {
        result.lost = *expected - result.saved;
    }
    return result;
}

} // namespace

std::optional<Database> openDamaged(const std::string &path,
                                    const std::shared_ptr<BusyLimit> &busyLimit)
{
    try {
        Database damaged(path, Database::Access::ReadWrite, busyLimit);
        leaveUnchanged(damaged);
        damaged.execute("BEGIN IMMEDIATE");
        damaged.integer("SELECT count(*) FROM sqlite_schema");
        return damaged;
    } catch (const SqliteError &error) {
        if (error.result() == RUI_BUSY) {
            throw;
        }
        return std::nullopt;
    }
}

Salvaged salvage(Database &into, const std::optional<Database> &damaged)
{
    Transaction transaction(into);
    const Salvaged result = damaged ? copyAll(*damaged, into) : Salvaged{0, 1};
    if (result.lost > 0) {
        addLoss(into, LossReason::Damaged, result.lost);
    }
    transaction.commit();
    return result;
}

} // namespace rui
