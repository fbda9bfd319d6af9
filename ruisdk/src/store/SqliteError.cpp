// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/SqliteError.h"

#include "store/SystemError.h"

namespace rui {

namespace {

// SQLite has a code of its own for a full disk only where it writes content, not where it creates
// or enlarges a file. A read that fails leaves an errno of an earlier call.
bool needsRoom(int extendedCode) noexcept
{
    switch (extendedCode) {
    case SQLITE_IOERR_WRITE:
    case SQLITE_IOERR_FSYNC:
    case SQLITE_IOERR_DIR_FSYNC:
    case SQLITE_IOERR_TRUNCATE:
    case SQLITE_IOERR_SHMOPEN:
    case SQLITE_IOERR_SHMSIZE:
        return true;
    default:
        return (extendedCode & 0xFF) == SQLITE_CANTOPEN;
    }
}

} // namespace

ruiResult resultOfSqlite(int extendedCode, int systemError) noexcept
{
    if (needsRoom(extendedCode) && isFull(systemError)) {
        return RUI_FULL;
    }
    switch (extendedCode & 0xFF) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
        return RUI_OK;
    case SQLITE_FULL:
        return RUI_FULL;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return RUI_BUSY;
    case SQLITE_TOOBIG:
        return RUI_TOO_LARGE;
    case SQLITE_PERM:
    case SQLITE_READONLY:
    case SQLITE_IOERR:
    case SQLITE_CANTOPEN:
    case SQLITE_PROTOCOL:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return RUI_STORAGE;
    default:
        return RUI_INTERNAL;
    }
}

SqliteError::SqliteError(int extendedCode, const std::string &where, int systemError)
    : Failure(resultOfSqlite(extendedCode, systemError),
              where + ": " + sqlite3_errstr(extendedCode))
    , m_extendedCode(extendedCode)
{}

SqliteError::SqliteError(sqlite3 *connection, const std::string &where)
    : SqliteError(sqlite3_extended_errcode(connection), where, sqlite3_system_errno(connection))
{}

bool SqliteError::isDamage() const noexcept
{
    const int code = m_extendedCode & 0xFF;
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
}

} // namespace rui
