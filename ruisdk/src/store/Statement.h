// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace rui {

// A prepared SQL statement. Used by one thread at a time, and not longer than its database.
// Everything throws SqliteError.
class Statement
{
public:
    Statement(sqlite3 *database, std::string_view sql);

    // Parameters count from 1. A text is not copied: it must live until the statement is reset.
    Statement &bind(int parameter, std::int64_t value);
    Statement &bind(int parameter, std::string_view text);
    Statement &bindNull(int parameter);

    // True while there is a row.
    bool step();

    // Runs a statement that gives no rows, and resets it.
    void run();

    // Ends the statement's transaction; it can be run again. Keeps the parameters.
    void reset() noexcept;

    // Columns count from 0. A text is valid until the next step or reset.
    std::int64_t integer(int column) const;
    std::string_view text(int column) const;
    bool isNull(int column) const;
    // The texts among the first columns are UTF-8 without zero bytes, as everything that was
    // stored. SQLite itself does not notice when others have got into the file.
    bool isSound(int columns) const;

    // Binds the first columns of another statement's row as this one's parameters, and runs it.
    void runWith(const Statement &row, int columns);

private:
    void check(int code) const;

    struct Finalizer
    {
        void operator()(sqlite3_stmt *statement) const noexcept
        {
            sqlite3_finalize(statement);
        }
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> m_statement;
};

// Resets a statement at the end of a block, so that no error leaves its transaction open.
class ResetGuard
{
public:
    explicit ResetGuard(Statement &statement)
        : m_statement(statement)
    {}
    ~ResetGuard()
    {
        m_statement.reset();
    }
    ResetGuard(const ResetGuard &) = delete;
    ResetGuard &operator=(const ResetGuard &) = delete;

private:
    Statement &m_statement;
};

} // namespace rui
