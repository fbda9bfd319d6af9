// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Failure.h"

#include <sqlite3.h>

namespace rui {

// A failed call of SQLite.
class SqliteError : public Failure
{
public:
    // extendedCode: as sqlite3_extended_errcode gives it; where: names what was being done;
    // systemError: the errno of the call of the operating system that failed, 0 when none did.
    SqliteError(int extendedCode, const std::string &where, int systemError = 0);

    // What failed last on this connection.
    SqliteError(sqlite3 *connection, const std::string &where);

    // The file's content is proven wrong: not a database, or a corrupt one. Never true for a
    // locked database, a full disk or a failing device.
    bool isDamage() const noexcept;

    int extendedCode() const noexcept
    {
        return m_extendedCode;
    }

private:
    int m_extendedCode;
};

// The result of a call that ended with this SQLite code, and this errno or 0.
ruiResult resultOfSqlite(int extendedCode, int systemError = 0) noexcept;

} // namespace rui
