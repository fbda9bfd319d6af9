// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/EventInsert.h"

#include "core/Ulid.h"

#include <algorithm>

namespace rui {

namespace {

// What the next row follows from. The last event is read through the table's own key, and stands
// on the page that is written next.
constexpr const char *lookSql =
    "SELECT epoch, floor, (SELECT seq FROM event ORDER BY seq DESC LIMIT 1),"
    " (SELECT total FROM event ORDER BY seq DESC LIMIT 1), gone, gone_bytes"
    " FROM state WHERE id = 1";

constexpr const char *insertSql =
    "INSERT INTO event(seq, size, total, time, uid, resource, category, name, session, text,"
    " run) VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11)";

} // namespace

EventInsert::EventInsert(const Database &database)
    : m_handle(database.handle())
    , m_begin(database.prepare("BEGIN IMMEDIATE"))
    , m_look(database.prepare(lookSql))
    , m_insert(database.prepare(insertSql))
    , m_commit(database.prepare("COMMIT"))
{}

EventInsert::Position EventInsert::look()
{
    const ResetGuard guard(m_look);
    m_look.step();
    Position position;
    position.epoch = m_look.integer(0);
    position.seq = std::max(m_look.integer(1), m_look.integer(2)) + 1;
    position.total = m_look.integer(3);
    position.gone = m_look.integer(4);
    position.goneBytes = m_look.integer(5);
    return position;
}

void EventInsert::insert(const Event &event, const Position &position, Origin origin,
                         std::int64_t now)
{
    const std::string uid = m_ulids.make(now);
    m_insert.bind(1, position.seq).bind(2, event.size()).bind(3, position.total + event.size());
    m_insert.bind(4, now).bind(5, uid).bind(6, origin.membership.resource);
    m_insert.bind(7, event.category).bind(8, event.name).bind(9, event.session);
    if (event.text) {
        m_insert.bind(10, *event.text);
    } else {
        m_insert.bindNull(10);
    }
    m_insert.bind(11, origin.run);
    m_insert.run();
}

void EventInsert::rollBack() noexcept
{
    // Fails when SQLite has rolled back already, after a full disk for example.
    sqlite3_exec(m_handle, "ROLLBACK", nullptr, nullptr, nullptr);
}

std::optional<Occupancy> EventInsert::run(const Event &event, Origin origin, std::int64_t now)
{
    m_begin.run();
    try {
        const Position position = look();
        if (position.epoch != origin.membership.epoch) {
            rollBack();
            return std::nullopt;
        }
        insert(event, position, origin, now);
        m_commit.run();
        return Occupancy{position.seq - position.gone,
                         position.total + event.size() - position.goneBytes};
    } catch (...) {
        rollBack();
        throw;
    }
}

} // namespace rui
