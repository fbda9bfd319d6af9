// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Floor.h"

#include <stdexcept>

namespace rui::benchmarks {

namespace {

constexpr const char *setup =
    "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 0;"
    "CREATE TABLE IF NOT EXISTS event(seq INTEGER PRIMARY KEY, size INTEGER, time INTEGER, uid "
    "TEXT,"
    " resource INTEGER, category TEXT, name TEXT, session TEXT, text TEXT)";

constexpr int busyMilliseconds = 60000;

constexpr const char *insert =
    "INSERT INTO event(size, time, uid, resource, category, name, session, text)"
    " VALUES(213, 1795199937042000000, '01M7X3PKPZ0XS3T5BFDHPJZ4DJ', 1, 'Camera', 'Opened', '',"
    " ?1)";

} // namespace

BareInsert::BareInsert(const std::string &path)
{
    if (sqlite3_open(path.c_str(), &m_database) != SQLITE_OK
        || sqlite3_busy_timeout(m_database, busyMilliseconds) != SQLITE_OK
        || sqlite3_exec(m_database, setup, nullptr, nullptr, nullptr) != SQLITE_OK
        || sqlite3_prepare_v2(m_database, insert, -1, &m_insert, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(m_database));
    }
}

BareInsert::~BareInsert()
{
    sqlite3_finalize(m_insert);
    sqlite3_close(m_database);
}

void BareInsert::run(const std::string &text)
{
    sqlite3_bind_text(m_insert, 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
    if (sqlite3_step(m_insert) != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(m_database));
    }
    sqlite3_reset(m_insert);
}

} // namespace rui::benchmarks
