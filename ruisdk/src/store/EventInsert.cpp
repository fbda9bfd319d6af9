// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/EventInsert.h"

#include "core/Ulid.h"

namespace rui {

namespace {

// One statement is one transaction: between the check of the epoch and the insert no opt-out can
// come. The first and the last event are read through the table's own key.
constexpr const char *insertSql =
    "INSERT INTO event(seq, size, total, time, uid, resource, category, name, session, text)"
    " SELECT max(state.floor, coalesce(last.seq, 0)) + 1, ?2, coalesce(last.total, 0) + ?2,"
    " ?3, ?4, ?5, ?6, ?7, ?8, ?9"
    " FROM state LEFT JOIN (SELECT seq, total FROM event ORDER BY seq DESC LIMIT 1) AS last"
    " WHERE state.id = 1 AND state.epoch = ?1"
    " RETURNING seq - (SELECT min(seq) FROM event) + 1,"
    " total - (SELECT total - size FROM event ORDER BY seq LIMIT 1)";

} // namespace

EventInsert::EventInsert(const Database &database)
    : m_statement(database.prepare(insertSql))
{}

std::optional<Occupancy> EventInsert::run(const Event &event, const Membership &membership,
                                          std::int64_t now)
{
    const ResetGuard guard(m_statement);
    const std::string uid = makeUlid(now);
    m_statement.bind(1, membership.epoch).bind(2, event.size()).bind(3, now).bind(4, uid);
    m_statement.bind(5, membership.resource).bind(6, event.category).bind(7, event.name);
    m_statement.bind(8, event.session);
    if (event.text) {
        m_statement.bind(9, *event.text);
    } else {
        m_statement.bindNull(9);
    }
    if (!m_statement.step()) {
        return std::nullopt;
    }
    const Occupancy occupancy{m_statement.integer(0), m_statement.integer(1)};
    // The row comes before the commit, which can still fail.
    m_statement.step();
    return occupancy;
}

} // namespace rui
