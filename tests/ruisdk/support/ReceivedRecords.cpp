// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "ReceivedRecords.h"

#include <sqlite3.h>

#include <stdexcept>

namespace rui::test {

namespace {

constexpr const char *sql = "SELECT (SELECT json_extract(value, '$.value.stringValue')"
                            "  FROM json_each(record.value, '$.attributes')"
                            "  WHERE json_extract(value, '$.key') = 'log.record.uid'),"
                            " json_extract(record.value, '$.eventName'),"
                            " (SELECT json_extract(value, '$.value.stringValue')"
                            "  FROM json_each(resource.value, '$.resource.attributes')"
                            "  WHERE json_extract(value, '$.key') = 'rui.client.id'),"
                            " coalesce(json_extract(record.value, '$.body.stringValue'), '')"
                            " FROM json_each(?1, '$.resourceLogs') AS resource,"
                            " json_each(resource.value, '$.scopeLogs[0].logRecords') AS record";

std::string column(sqlite3_stmt *query, int index)
{
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(query, index));
    return text == nullptr ? "(null)" : text;
}

void readRequest(sqlite3_stmt *query, const std::string &body, std::vector<ReceivedRecord> &records)
{
    sqlite3_reset(query);
    sqlite3_bind_text(query, 1, body.data(), static_cast<int>(body.size()), SQLITE_STATIC);
    int code = SQLITE_ROW;
    while ((code = sqlite3_step(query)) == SQLITE_ROW) {
        records.push_back({column(query, 0), column(query, 1), column(query, 2), column(query, 3)});
    }
    if (code != SQLITE_DONE) {
        throw std::runtime_error("a request is not the JSON that was expected: " + body);
    }
}

} // namespace

std::vector<ReceivedRecord> receivedRecords(const TestServer &server)
{
    sqlite3 *memory = nullptr;
    sqlite3_stmt *query = nullptr;
    std::vector<ReceivedRecord> records;
    sqlite3_open(":memory:", &memory);
    sqlite3_prepare_v2(memory, sql, -1, &query, nullptr);
    for (const Request &request : server.requests()) {
        readRequest(query, request.body, records);
    }
    sqlite3_finalize(query);
    sqlite3_close(memory);
    return records;
}

} // namespace rui::test
