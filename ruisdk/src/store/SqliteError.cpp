// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/SqliteError.h"

#include <sqlite3.h>

namespace rui {

ruiResult resultOfSqlite(int extendedCode) noexcept
{
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

SqliteError::SqliteError(int extendedCode, const std::string &where)
    : Failure(resultOfSqlite(extendedCode), where + ": " + sqlite3_errstr(extendedCode))
    , m_extendedCode(extendedCode)
{}

bool SqliteError::isDamage() const noexcept
{
    const int code = m_extendedCode & 0xFF;
    return code == SQLITE_CORRUPT || code == SQLITE_NOTADB;
}

} // namespace rui
