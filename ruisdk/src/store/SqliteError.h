// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Failure.h"

namespace rui {

// A failed call of SQLite.
class SqliteError : public Failure
{
public:
    // extendedCode is what sqlite3_extended_errcode gives; where names what was being done.
    SqliteError(int extendedCode, const std::string &where);

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

// The result of a call that ended with this SQLite code.
ruiResult resultOfSqlite(int extendedCode) noexcept;

} // namespace rui
