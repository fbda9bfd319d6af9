// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/RowCopy.h"

#include "store/SqliteError.h"

#include <algorithm>
#include <limits>
#include <set>
#include <vector>

namespace rui {

namespace {

// Around damage, this many numbers are looked up one by one: twice the events that may wait, in a
// fraction of a second.
constexpr std::int64_t maxProbes = 20000;

std::set<std::string> columnsOf(const Database &database, const std::string &table)
{
    std::set<std::string> columns;
    Statement query = database.prepare("SELECT name FROM pragma_table_info('" + table + "')");
    while (query.step()) {
        columns.emplace(query.text(0));
    }
    return columns;
}

std::vector<std::string> commonColumns(const Database &from, const Database &to,
                                       const std::string &table, const std::string &key)
{
    const auto there = columnsOf(from, table);
    std::vector<std::string> common = {key};
    for (const std::string &column : columnsOf(to, table)) {
        if (column != key && there.count(column) != 0) {
            common.push_back(column);
        }
    }
    return common;
}

std::string joined(const std::vector<std::string> &words, const std::string &word = {})
{
    std::string text;
    for (const std::string &each : words) {
        text += (text.empty() ? "" : ", ") + (word.empty() ? each : word);
    }
    return text;
}

// For a handler: what was written must not fail for what could not be read.
void rethrowUnless(const Database &isFine)
{
    const int code = sqlite3_errcode(isFine.handle());
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) {
        throw;
    }
}

} // namespace

RowCopy::RowCopy(const Database &from, Database &to, const std::string &table,
                 const std::string &key)
    : m_from(from)
    , m_to(to)
    , m_key(key)
{
    const auto columns = commonColumns(from, to, table, key);
    m_columns = static_cast<int>(columns.size());
    m_select = "SELECT " + joined(columns) + " FROM " + table;
    m_insert.emplace(to.handle(), "INSERT OR IGNORE INTO " + table + "(" + joined(columns)
                                      + ") VALUES(" + joined(columns, "?") + ")");
}

void RowCopy::run()
{
    constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
    const auto front = scan(true, lowest);
    if (!m_isIncomplete) {
        return;
    }
    const auto back = scan(false, front.value_or(lowest));
    if (front && back) {
        probe(*front + 1, std::min(*back - 1, *front + maxProbes));
    } else if (front) {
        probe(*front + 1, *front + maxProbes);
    } else if (back) {
        probe(std::max<std::int64_t>(1, *back - maxProbes), *back - 1);
    }
    // Beyond an end, the numbers that are not found were never there, as far as anybody knows.
    m_missing = front && back ? m_missing : 0;
}

std::optional<std::int64_t> RowCopy::scan(bool forward, std::int64_t limit)
{
    std::optional<std::int64_t> last;
    try {
        Statement rows(m_from.handle(), m_select + " WHERE " + m_key + " > ?1 ORDER BY " + m_key
                                            + (forward ? "" : " DESC"));
        rows.bind(1, limit);
        while (rows.step()) {
            if (take(rows)) {
                last = rows.integer(0);
            }
        }
    } catch (const SqliteError &) {
        rethrowUnless(m_to);
        m_isIncomplete = true;
    }
    return last;
}

void RowCopy::probe(std::int64_t first, std::int64_t last)
{
    Statement row(m_from.handle(), m_select + " WHERE " + m_key + " = ?1");
    for (std::int64_t number = first; number <= last; ++number) {
        const ResetGuard guard(row);
        try {
            m_missing += row.bind(1, number).step() && take(row) ? 0 : 1;
        } catch (const SqliteError &) {
            rethrowUnless(m_to);
            ++m_missing;
        }
    }
}

bool RowCopy::take(const Statement &row)
{
    if (!row.isSound(m_columns)) {
        m_isIncomplete = true;
        return false;
    }
    m_insert->runWith(row, m_columns);
    m_copied += sqlite3_changes(m_to.handle());
    return true;
}

} // namespace rui
