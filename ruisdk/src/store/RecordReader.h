// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"
#include "store/StorePaths.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace rui {

// Which records are wanted; what is not set does not matter.
struct RecordFilter
{
    std::optional<std::string> category;
    std::optional<std::string> name;
    // Nanoseconds since 1970; since is included, until is not.
    std::optional<std::int64_t> since;
    std::optional<std::int64_t> until;
};

// A stored record. The texts are the bytes that were tracked.
struct Record
{
    std::int64_t seq = 0;
    std::string state; // "pending", "delivered", or "exported": handed over in a file
    std::int64_t time = 0;
    std::string uid;
    std::int64_t resource = 0;
    std::string category;
    std::string name;
    std::string session;
    std::string run; // the random id of the session that stored it; empty when none did
    std::optional<std::string> text; // nothing: tracked without a text
};

// Reads what a directory stores, while others write. Used by one thread. Throws Failure.
class RecordReader
{
public:
    // RUI_STORAGE when nothing is stored.
    explicit RecordReader(const StorePaths &paths);

    // Nothing when nothing is stored, not even an empty database that is complete.
    static std::optional<RecordReader> tryOpen(const StorePaths &paths);

    // Gives the records that are there now and whose number is greater than `after`, oldest first;
    // returns the highest number that was looked at. `take` may take its time: the database is not
    // held meanwhile. What is deleted before its turn is left out.
    std::int64_t read(const RecordFilter &filter, std::int64_t after,
                      const std::function<void(const Record &)> &take) const;

    // Changes whenever another connection has committed something.
    std::int64_t version() const;

    // True when the database was replaced or removed; a new reader sees the new one.
    bool hasMoved() const;

    const Database &database() const
    {
        return m_database;
    }

private:
    std::vector<Record> readPage(const RecordFilter &filter, std::int64_t after,
                                 std::int64_t last) const;

    explicit RecordReader(Database database)
        : m_database(std::move(database))
    {}

    Database m_database;
};

} // namespace rui
