// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "StoredRecords.h"

#include <sqlite3.h>

#include <filesystem>
#include <stdexcept>

namespace rui::test {

namespace {

int appendRow(void *rows, int columns, char **values, char **)
{
    Row row;
    for (int i = 0; i < columns; ++i) {
        row.emplace_back(values[i] == nullptr ? "(null)" : values[i]);
    }
    static_cast<std::vector<Row> *>(rows)->push_back(row);
    return 0;
}

} // namespace

std::string databasePath(const std::string &directory)
{
    return directory + "/usage-events.sqlite";
}

void moveDatabase(const std::string &directory, const std::string &target)
{
    for (const char *suffix : {"", "-wal", "-shm"}) {
        std::error_code error;
        std::filesystem::rename(databasePath(directory) + suffix, target + suffix, error);
    }
}

std::vector<Row> query(const std::string &directory, const std::string &sql)
{
    sqlite3 *database = nullptr;
    std::vector<Row> rows;
    int code =
        sqlite3_open_v2(databasePath(directory).c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    sqlite3_busy_timeout(database, 10000);
    code =
        code == SQLITE_OK ? sqlite3_exec(database, sql.c_str(), appendRow, &rows, nullptr) : code;
    const std::string message = sqlite3_errmsg(database);
    sqlite3_close(database);
    if (code != SQLITE_OK) {
        throw std::runtime_error(sql + ": " + message);
    }
    return rows;
}

std::string queryValue(const std::string &directory, const std::string &sql)
{
    const auto rows = query(directory, sql);
    return rows.empty() ? "(no row)" : rows.front().front();
}

std::vector<std::string> storedTexts(const std::string &directory)
{
    std::vector<std::string> texts;
    for (const Row &row : query(directory, "SELECT text FROM record ORDER BY seq")) {
        texts.push_back(row.front());
    }
    return texts;
}

void change(const std::string &directory, const std::string &sql)
{
    query(directory, sql);
}

} // namespace rui::test
