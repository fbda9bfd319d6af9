// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Outbox.h"

#include "core/Failure.h"
#include "store/Consent.h"
#include "store/LossRecord.h"
#include "store/Notices.h"
#include "store/SqliteError.h"
#include "store/StorePaths.h"

#include <algorithm>

namespace rui {

namespace {

constexpr const char *columns =
    "SELECT seq, time, uid, resource, category, name, session, text, run";

Record recordOf(const Statement &query)
{
    Record record;
    record.seq = query.integer(0);
    record.time = query.integer(1);
    record.uid = query.text(2);
    record.resource = query.integer(3);
    record.category = query.text(4);
    record.name = query.text(5);
    record.session = query.text(6);
    if (!query.isNull(7)) {
        record.text = std::string(query.text(7));
    }
    record.run = query.text(8);
    return record;
}

Resource resourceOf(const Statement &query)
{
    Resource resource;
    resource.client = query.text(0);
    resource.product.productId = query.text(1);
    resource.product.application = query.text(2);
    resource.product.edition = query.text(3);
    resource.product.language = query.text(4);
    resource.product.version = query.text(5);
    resource.product.build = query.text(6);
    return resource;
}

void run(Database &database, const char *sql, std::int64_t parameter)
{
    database.prepare(sql).bind(1, parameter).run();
}

} // namespace

Outbox::Outbox(Database &database, Limits limits)
    : m_database(database)
    , m_mark(StorePaths::of(database.path()).consent())
    , m_limits(limits)
{}

bool Outbox::hasOptOut() const
{
    return m_database.integer("SELECT EXISTS(SELECT 1 FROM notice WHERE kind = 'optOut')") != 0;
}

bool Outbox::hasRecords() const
{
    return m_database.integer("SELECT EXISTS(SELECT 1 FROM event) OR EXISTS(SELECT 1 FROM notice)")
           != 0;
}

std::int64_t Outbox::pending() const
{
    return m_database.integer(
        "SELECT (SELECT count(*) FROM event) + (SELECT count(*) FROM notice)");
}

Schedule Outbox::schedule() const
{
    Statement query = m_database.prepare("SELECT not_before, failures, wait FROM state");
    query.step();
    return {query.integer(0), query.integer(1), query.integer(2)};
}

void Outbox::setSchedule(const Schedule &schedule)
{
    m_database
        .prepare("UPDATE state SET not_before = ?1, failures = ?2, wait = ?3"
                 " WHERE not_before <> ?1 OR failures <> ?2")
        .bind(1, schedule.notBefore)
        .bind(2, schedule.failures)
        .bind(3, schedule.wait)
        .run();
}

void Outbox::noteFailure(const std::string &reason, std::int64_t now)
{
    m_database.prepare("UPDATE state SET failed_at = ?1, failure = ?2")
        .bind(1, now)
        .bind(2, reason)
        .run();
}

const Resource &Outbox::resource(std::int64_t id)
{
    const auto known = m_resources.find(id);
    if (known != m_resources.end()) {
        return known->second;
    }
    Statement query = m_database.prepare("SELECT client, product, application, edition, language,"
                                         " version, build FROM resource WHERE id = ?1");
    if (!query.bind(1, id).step()) {
        throw SqliteError(SQLITE_CORRUPT, "the description of a product is missing");
    }
    return m_resources[id] = resourceOf(query);
}

Batch Outbox::read(const std::string &sql, std::size_t maxRecords, std::size_t maxBytes,
                   std::int64_t after)
{
    // The number of a retired description may have been given to another one since.
    m_resources.clear();
    Batch batch;
    OtlpPayload payload;
    Statement query = m_database.prepare(sql);
    query.bind(1, static_cast<std::int64_t>(maxRecords)).bind(2, after);
    while (query.step()) {
        if (!query.isSound(8)) {
            throw SqliteError(SQLITE_CORRUPT, "a text was overwritten");
        }
        const Record record = recordOf(query);
        if (!payload.add(record, resource(record.resource), maxBytes)) {
            break;
        }
        batch.keys.push_back({record.seq, record.uid});
    }
    if (!batch.keys.empty()) {
        batch.payload = payload.finish();
    }
    return batch;
}

Batch Outbox::next(std::size_t maxRecords, std::size_t maxBytes, std::int64_t now,
                   std::int64_t after)
{
    Batch batch = read(std::string(columns)
                           + " FROM notice WHERE kind = 'optOut' AND seq > ?2"
                             " ORDER BY seq LIMIT ?1",
                       maxRecords, maxBytes, after);
    batch.isOptOut = !batch.keys.empty();
    if (!batch.isOptOut) {
        noteLosses(now);
        batch = read(std::string(columns)
                         + " FROM (SELECT * FROM record WHERE state = 'pending' AND seq > ?2)"
                           " ORDER BY seq LIMIT ?1",
                     maxRecords, maxBytes, after);
    }
    // After the reading: a withdrawal that was requested before is either in the batch or seen
    // here.
    requireConsent();
    return batch;
}

void Outbox::requireConsent()
{
    if (isWithdrawalPending(m_database, m_mark)) {
        throw Failure(RUI_OPTED_OUT, m_database.path()
                                         + ": consent was withdrawn; nothing is sent before that is"
                                           " carried out");
    }
}

void Outbox::noteLosses(std::int64_t now)
{
    // Only along with an event: a server that refuses everything would otherwise be told of each
    // refusal without end.
    const bool due = m_database.integer("SELECT EXISTS(SELECT 1 FROM loss WHERE lost > 0)"
                                        " AND EXISTS(SELECT 1 FROM event)"
                                        " AND NOT EXISTS(SELECT 1 FROM notice)")
                     != 0;
    if (due) {
        addLossRecord(m_database, now);
    }
}

void Outbox::keepDelivered(const Batch &batch, std::int64_t now, bool exported)
{
    const std::string copy =
        "INSERT INTO delivered(seq, delivered, size, time, uid, resource, category, name,"
        " session, text, run, exported) SELECT seq, ?2, coalesce(length(CAST(text AS BLOB)), 0),"
        " time, uid, resource, category, name, session, text, run, ?4 FROM ";
    Statement event = m_database.prepare(copy + "event WHERE seq = ?1 AND uid = ?3");
    Statement notice = m_database.prepare(copy + "notice WHERE seq = ?1 AND uid = ?3");
    event.bind(4, exported ? 1 : 0);
    notice.bind(4, exported ? 1 : 0);
    for (const Batch::Key &key : batch.keys) {
        event.bind(1, key.seq).bind(2, now).bind(3, key.uid).run();
        notice.bind(1, key.seq).bind(2, now).bind(3, key.uid).run();
    }
}

void Outbox::trimDelivered()
{
    run(m_database,
        "DELETE FROM delivered WHERE seq <="
        " (SELECT seq FROM delivered ORDER BY seq DESC LIMIT 1 OFFSET ?1)",
        m_limits.deliveredEvents);
    run(m_database,
        "DELETE FROM delivered WHERE seq IN (SELECT seq FROM (SELECT seq,"
        " sum(size) OVER (ORDER BY seq DESC) AS kept FROM delivered) WHERE kept > ?1)",
        m_limits.deliveredBytes);
}

void Outbox::clearSchedule()
{
    m_database.execute("UPDATE state SET not_before = 0, failures = 0");
}

// Returns how many events were still there.
std::int64_t Outbox::remove(const Batch &batch)
{
    std::int64_t events = 0;
    keepNumbers(m_database);
    Statement event = m_database.prepare("DELETE FROM event WHERE seq = ?1 AND uid = ?2");
    Statement notice = m_database.prepare("DELETE FROM notice WHERE seq = ?1 AND uid = ?2");
    for (const Batch::Key &key : batch.keys) {
        event.bind(1, key.seq).bind(2, key.uid).run();
        events += sqlite3_changes(m_database.handle());
        notice.bind(1, key.seq).bind(2, key.uid).run();
    }
    return events;
}

void Outbox::settle(const Batch &batch, std::int64_t rejected, std::int64_t now)
{
    Transaction transaction(m_database);
    keepDelivered(batch, now, false);
    const std::int64_t events = remove(batch);
    trimDelivered();
    if (batch.isOptOut) {
        forgetRetiredClients(m_database);
    }
    const std::int64_t refused = std::min(rejected, events);
    if (refused > 0) {
        addLoss(m_database, LossReason::PartlyRejected, refused);
    }
    run(m_database, "UPDATE state SET delivered = delivered + ?1", events - refused);
    clearSchedule();
    transaction.commit();
}

void Outbox::settleExported(const Batch &batch, std::int64_t now)
{
    Transaction transaction(m_database);
    keepDelivered(batch, now, true);
    const std::int64_t events = remove(batch);
    trimDelivered();
    if (batch.isOptOut) {
        forgetRetiredClients(m_database);
    }
    run(m_database, "UPDATE state SET exported = exported + ?1", events);
    transaction.commit();
}

void Outbox::drop(const Batch &batch, LossReason reason)
{
    Transaction transaction(m_database);
    for (const Batch::Key &key : batch.keys) {
        restoreLosses(m_database, key.seq);
    }
    const std::int64_t events = remove(batch);
    if (events > 0) {
        addLoss(m_database, reason, events);
    }
    clearSchedule();
    transaction.commit();
}

} // namespace rui
