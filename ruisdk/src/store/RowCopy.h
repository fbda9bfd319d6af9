// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <optional>
#include <string>

namespace rui {

// Copies the rows of one table from a damaged database: as far as they can be read from the first
// one on, as far as they can be read from the last one on, and what is found by its number in
// between. Used by one thread.
class RowCopy
{
public:
    // key: the column with the rows' numbers. Columns that one of the two does not have are left
    // out. Throws SqliteError; from here on only when `to` cannot be written.
    RowCopy(const Database &from, Database &to, const std::string &table, const std::string &key);

    void run();

    std::int64_t copied() const
    {
        return m_copied;
    }

    // Numbers in the middle that could not be read; some may never have been there.
    std::int64_t missing() const
    {
        return m_missing;
    }

    // Something could not be read.
    bool isIncomplete() const
    {
        return m_isIncomplete;
    }

private:
    // The number of the last row that could be read in this order; nothing: none could.
    std::optional<std::int64_t> scan(bool forward, std::int64_t limit);
    void probe(std::int64_t first, std::int64_t last);
    bool take(const Statement &row);

    const Database &m_from;
    Database &m_to;
    std::string m_select;
    std::string m_key;
    int m_columns = 0;
    std::optional<Statement> m_insert;
    std::int64_t m_copied = 0;
    std::int64_t m_missing = 0;
    bool m_isIncomplete = false;
};

} // namespace rui
