// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/LossRecord.h"

#include "core/JsonWriter.h"
#include "store/Notices.h"

namespace rui {

namespace {

// {"EventCategory":"ruiSDK","EventName":"EventsLost","maxAge":3}: one member for each reason.
std::string recordText(const Database &database)
{
    JsonWriter json;
    json.beginObject().key("EventCategory").string("ruiSDK").key("EventName").string("EventsLost");
    Statement query =
        database.prepare("SELECT reason, lost FROM loss WHERE lost > 0 ORDER BY reason");
    while (query.step()) {
        json.key(query.text(0)).integer(query.integer(1));
    }
    return json.endObject().text();
}

// The newest description of the product under the client id of now; 0 when there is none.
std::int64_t currentResource(const Database &database)
{
    return database.integer(
        "SELECT coalesce(max(resource.id), 0) FROM resource JOIN state USING(client)");
}

} // namespace

void addLossRecord(Database &database, std::int64_t now)
{
    Transaction transaction(database);
    const std::int64_t resource = currentResource(database);
    if (resource != 0) {
        addNotice(database,
                  {nextSequence(database), NoticeKind::Loss, now, resource, recordText(database)});
        database.execute("UPDATE loss SET told = told + lost, lost = 0");
        transaction.commit();
    }
}

void restoreLosses(Database &database, std::int64_t seq)
{
    database
        .prepare("UPDATE loss SET lost = lost + told_now.value, told = told - told_now.value"
                 " FROM (SELECT key, value FROM notice, json_each(notice.text)"
                 " WHERE seq = ?1 AND kind = 'loss' AND type = 'integer') AS told_now"
                 " WHERE loss.reason = told_now.key")
        .bind(1, seq)
        .run();
}

} // namespace rui
