// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Notices.h"

#include "core/Ulid.h"

namespace rui {

std::int64_t nextSequence(const Database &database)
{
    return database.integer(
        "SELECT max(floor, coalesce((SELECT max(seq) FROM event), 0)) + 1 FROM state");
}

void keepNumbers(Database &database)
{
    database.execute(
        "UPDATE state SET floor = max(floor, coalesce((SELECT max(seq) FROM event), 0))");
}

void addNotice(Database &database, const Notice &notice)
{
    const bool optOut = notice.kind == NoticeKind::OptOut;
    const std::string uid = makeUlid(notice.time);
    Statement insert = database.prepare(
        "INSERT INTO notice(seq, kind, time, uid, resource, category, name, session, text)"
        " VALUES(?1, ?2, ?3, ?4, ?5, 'ruiSDK', ?6, '', ?7)");
    insert.bind(1, notice.seq)
        .bind(2, optOut ? "optOut" : "loss")
        .bind(3, notice.time)
        .bind(4, uid)
        .bind(5, notice.resource)
        .bind(6, optOut ? "OptOut" : "EventsLost");
    if (notice.text.empty()) {
        insert.bindNull(7);
    } else {
        insert.bind(7, notice.text);
    }
    insert.run();
    // A later event must not get this number.
    database.prepare("UPDATE state SET floor = ?1").bind(1, notice.seq).run();
}

} // namespace rui
