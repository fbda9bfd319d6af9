// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/RecordReader.h"

#include "core/Failure.h"
#include "store/Schema.h"
#include "store/SqliteError.h"
#include "store/StoreOpening.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

namespace rui {

namespace {

// Reading never waits for a writer; only opening does, for a moment.
constexpr std::chrono::milliseconds openingLimit{2000};

// What is read at a time. While it is read, writers cannot begin their journal anew: whoever takes
// the records may take as long as he likes, and must not do so in between.
constexpr std::size_t pageRecords = 100;
constexpr std::size_t pageBytes = std::size_t{1024} * 1024;

// Throws what a person can do about the error, if anything is known.
void explain(const SqliteError &error, const StorePaths &paths)
{
    if (error.isDamage()) {
        throw Failure(error.result(), paths.database()
                                          + ": is damaged, or no database of usage events; the"
                                            " next session sets it aside and begins a new one");
    }
    if ((error.extendedCode() & 0xFF) == SQLITE_CANTOPEN) {
        // A write-ahead log needs a file beside the database even to be read.
        throw Failure(error.result(),
                      paths.database()
                          + ": cannot be read where it is; copy the directory to where it can be"
                            " written");
    }
}

// Whether there is a database that this user may read.
bool isThere(const StorePaths &paths)
{
    std::error_code problem;
    const bool exists = std::filesystem::exists(paths.database(), problem);
    if (exists && access(paths.database().c_str(), R_OK) != 0) {
        problem.assign(errno, std::generic_category());
    }
    if (problem) {
        throw Failure(RUI_STORAGE, paths.database() + ": " + problem.message()
                                       + "; run this as the user whose events these are");
    }
    return exists;
}

std::optional<Database> openForReading(const StorePaths &paths)
{
    if (!isThere(paths)) {
        return std::nullopt;
    }
    try {
        Database database(paths.database(), Database::Access::ReadOnly,
                          std::make_shared<BusyLimit>(openingLimit));
        return hasSchema(database) ? std::optional<Database>(std::move(database)) : std::nullopt;
    } catch (const SqliteError &error) {
        explain(error, paths);
        throw;
    }
}

Database requireDatabase(const StorePaths &paths)
{
    auto database = openForReading(paths);
    if (!database) {
        throw noEventsIn(paths);
    }
    return std::move(*database);
}

std::string querySql(const Database &database, const RecordFilter &filter)
{
    std::string sql = "SELECT seq, state, time, uid, resource, category, name, session, text, ";
    sql += database.hasColumn("record", "run") ? "run" : "'' AS run";
    sql += " FROM record WHERE seq > ?1";
    sql += filter.category ? " AND category = ?2" : "";
    sql += filter.name ? " AND name = ?3" : "";
    sql += filter.since ? " AND time >= ?4" : "";
    sql += filter.until ? " AND time < ?5" : "";
    return sql + " AND seq <= ?6 ORDER BY seq LIMIT " + std::to_string(pageRecords);
}

void bindFilter(Statement &query, const RecordFilter &filter)
{
    if (filter.category) {
        query.bind(2, *filter.category);
    }
    if (filter.name) {
        query.bind(3, *filter.name);
    }
    if (filter.since) {
        query.bind(4, *filter.since);
    }
    if (filter.until) {
        query.bind(5, *filter.until);
    }
}

Record recordOf(const Statement &query)
{
    Record record;
    record.seq = query.integer(0);
    record.state = query.text(1);
    record.time = query.integer(2);
    record.uid = query.text(3);
    record.resource = query.integer(4);
    record.category = query.text(5);
    record.name = query.text(6);
    record.session = query.text(7);
    if (!query.isNull(8)) {
        record.text = std::string(query.text(8));
    }
    record.run = query.text(9);
    return record;
}

} // namespace

RecordReader::RecordReader(const StorePaths &paths)
    : m_database(requireDatabase(paths))
{}

std::optional<RecordReader> RecordReader::tryOpen(const StorePaths &paths)
{
    auto database = openForReading(paths);
    return database ? std::optional<RecordReader>(RecordReader(std::move(*database)))
                    : std::nullopt;
}

std::vector<Record> RecordReader::readPage(const RecordFilter &filter, std::int64_t after,
                                           std::int64_t last) const
{
    std::vector<Record> page;
    std::size_t bytes = 0;
    Statement query = m_database.prepare(querySql(m_database, filter));
    query.bind(1, after).bind(6, last);
    bindFilter(query, filter);
    while (bytes < pageBytes && query.step()) {
        page.push_back(recordOf(query));
        bytes += page.back().text.value_or("").size();
    }
    return page;
}

std::int64_t RecordReader::read(const RecordFilter &filter, std::int64_t after,
                                const std::function<void(const Record &)> &take) const
{
    // What is added meanwhile is for the next time: this one has an end.
    const std::int64_t last = m_database.integer(
        "SELECT max(floor, coalesce((SELECT max(seq) FROM event), 0)) FROM state");
    while (true) {
        const std::vector<Record> page = readPage(filter, after, last);
        if (page.empty()) {
            return std::max(after, last);
        }
        std::for_each(page.begin(), page.end(), take);
        after = page.back().seq;
    }
}

std::int64_t RecordReader::version() const
{
    return m_database.integer("PRAGMA data_version");
}

bool RecordReader::hasMoved() const
{
    return m_database.hasMoved();
}

} // namespace rui
