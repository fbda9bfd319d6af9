// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Statement.h"

#include "core/Utf8.h"
#include "store/SqliteError.h"

namespace rui {

Statement::Statement(sqlite3 *database, std::string_view sql)
{
    sqlite3_stmt *statement = nullptr;
    const int code = sqlite3_prepare_v3(database, sql.data(), static_cast<int>(sql.size()),
                                        SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    m_statement.reset(statement);
    if (code != SQLITE_OK) {
        throw SqliteError(database, sqlite3_errmsg(database));
    }
}

void Statement::check(int code) const
{
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) {
        sqlite3 *database = sqlite3_db_handle(m_statement.get());
        throw SqliteError(database, sqlite3_errmsg(database));
    }
}

Statement &Statement::bind(int parameter, std::int64_t value)
{
    check(sqlite3_bind_int64(m_statement.get(), parameter, value));
    return *this;
}

Statement &Statement::bind(int parameter, std::string_view text)
{
    // A null pointer would bind NULL instead of an empty text.
    const char *data = text.data() == nullptr ? "" : text.data();
    check(sqlite3_bind_text64(m_statement.get(), parameter, data, text.size(), SQLITE_STATIC,
                              SQLITE_UTF8));
    return *this;
}

Statement &Statement::bindNull(int parameter)
{
    check(sqlite3_bind_null(m_statement.get(), parameter));
    return *this;
}

bool Statement::step()
{
    const int code = sqlite3_step(m_statement.get());
    check(code);
    return code == SQLITE_ROW;
}

void Statement::run()
{
    const ResetGuard guard(*this);
    while (step()) {
    }
}

void Statement::reset() noexcept
{
    sqlite3_reset(m_statement.get());
}

std::int64_t Statement::integer(int column) const
{
    return sqlite3_column_int64(m_statement.get(), column);
}

std::string_view Statement::text(int column) const
{
    const auto *data =
        reinterpret_cast<const char *>(sqlite3_column_text(m_statement.get(), column));
    const int size = sqlite3_column_bytes(m_statement.get(), column);
    return data == nullptr ? std::string_view()
                           : std::string_view(data, static_cast<std::size_t>(size));
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_statement.get(), column) == SQLITE_NULL;
}

bool Statement::isSound(int columns) const
{
    for (int column = 0; column < columns; ++column) {
        if (sqlite3_column_type(m_statement.get(), column) != SQLITE_TEXT) {
            continue;
        }
        const std::string_view value = text(column);
        if (!isUtf8(value) || value.find('\0') != std::string_view::npos) {
            return false;
        }
    }
    return true;
}

void Statement::runWith(const Statement &row, int columns)
{
    for (int column = 0; column < columns; ++column) {
        check(sqlite3_bind_value(m_statement.get(), column + 1,
                                 sqlite3_column_value(row.m_statement.get(), column)));
    }
    run();
}

} // namespace rui
