// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/ProcessUse.h"
#include "store/Statement.h"

#include <sqlite3.h>
#include <sys/types.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <string>

namespace rui {

// How long a connection waits for a lock that another one holds. Shared with the owner, who may
// end all waiting from another thread.
struct BusyLimit
{
    explicit BusyLimit(std::chrono::milliseconds time)
        : limit(time)
    {}

    const std::chrono::milliseconds limit;
    std::atomic<bool> giveUp{false};
};

// One connection to an SQLite file. Used by one thread at a time. Everything throws SqliteError.
class Database
{
public:
    enum class Access { ReadOnly, ReadWrite };

    // Opens a file that exists already.
    Database(const std::string &path, Access access, std::shared_ptr<BusyLimit> busyLimit);

    const std::string &path() const noexcept
    {
        return m_path;
    }

    // Makes locks be waited for, as they are at first.
    void waitForLocks() const noexcept;

    // Runs statements that give no rows and take no parameters.
    void execute(const std::string &sql);

    Statement prepare(std::string_view sql) const
    {
        return Statement(m_connection.get(), sql);
    }

    // The first column of the first row; 0 when there is no row.
    std::int64_t integer(std::string_view sql) const;

    // A database of an earlier version lacks some; a reader does not bring it to the newest one.
    bool hasColumn(std::string_view table, std::string_view column) const;

    // True when the file was removed from its path or another one stands there now. False also
    // when that cannot be told.
    bool hasMoved() const;

    // Counts the pages in the write-ahead log at every commit from now on.
    void watchJournal();

    // The pages that the log had after this connection's last commit.
    int journalPages() const noexcept
    {
        return m_journalPages ? *m_journalPages : 0;
    }

    sqlite3 *handle() const noexcept
    {
        return m_connection.get();
    }

private:
    struct Closer
    {
        void operator()(sqlite3 *connection) const noexcept
        {
            sqlite3_close_v2(connection);
        }
    };
    // What SQLite calls while a lock is held by another connection.
    class Patience
    {
    public:
        explicit Patience(std::shared_ptr<BusyLimit> limit)
            : m_limit(std::move(limit))
        {}
        // 0 when the waiting is over.
        static int wait(void *self, int tries);

    private:
        const std::shared_ptr<BusyLimit> m_limit;
        std::chrono::steady_clock::time_point m_end;
    };
    ProcessUse m_use;
    // Stand before the connection, which uses them until it is closed.
    std::unique_ptr<Patience> m_patience;
    std::unique_ptr<int> m_journalPages;
    std::string m_path;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    std::unique_ptr<sqlite3, Closer> m_connection;
};

// A write transaction; rolled back unless it is committed. Takes the write lock at once, so that
// nothing that it read can be out of date when it writes.
class Transaction
{
public:
    explicit Transaction(Database &database);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void commit();

private:
    Database &m_database;
    bool m_open = true;
};

} // namespace rui
