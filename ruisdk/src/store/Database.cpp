// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Database.h"

#include "store/SqliteError.h"

#include <sys/stat.h>

#include <cerrno>
#include <thread>

namespace rui {

namespace {

using namespace std::chrono_literals;

// Sleeps double up to 5 ms. SQLite's own handler sleeps up to 100 ms, which a user of several
// writers would feel.
std::chrono::microseconds sleepBefore(int tries)
{
    return tries < 7 ? 50us * (1 << tries) : std::chrono::microseconds(5ms);
}

} // namespace

// By the clock: on a busy machine a sleep takes longer than it was asked for.
int Database::Patience::wait(void *self, int tries)
{
    auto &patience = *static_cast<Patience *>(self);
    const auto now = std::chrono::steady_clock::now();
    if (tries == 0) {
        patience.m_end = now + patience.m_limit->limit;
    }
    const auto sleep = sleepBefore(tries);
    if (patience.m_limit->giveUp || now + sleep >= patience.m_end) {
        return 0;
    }
    std::this_thread::sleep_for(sleep);
    return 1;
}

Database::Database(const std::string &path, Access access, std::shared_ptr<BusyLimit> busyLimit)
    : m_patience(std::make_unique<Patience>(std::move(busyLimit)))
    , m_path(path)
{
    const int mode = access == Access::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    sqlite3 *connection = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &connection,
                                     mode | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
    m_connection.reset(connection);
    if (code != SQLITE_OK) {
        throw SqliteError(code, path, sqlite3_system_errno(connection));
    }
    waitForLocks();
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0) {
        m_device = status.st_dev;
        m_inode = status.st_ino;
    } else if (path != ":memory:") {
        throw SqliteError(SQLITE_CANTOPEN, path, errno);
    }
}

void Database::waitForLocks() const noexcept
{
    sqlite3_busy_handler(m_connection.get(), &Patience::wait, m_patience.get());
}

void Database::execute(const std::string &sql)
{
    const int code = sqlite3_exec(m_connection.get(), sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) {
        throw SqliteError(m_connection.get(), sqlite3_errmsg(m_connection.get()));
    }
}

std::int64_t Database::integer(std::string_view sql) const
{
    Statement statement = prepare(sql);
    return statement.step() ? statement.integer(0) : 0;
}

bool Database::hasColumn(std::string_view table, std::string_view column) const
{
    Statement query = prepare("SELECT 1 FROM pragma_table_info(?1) WHERE name = ?2");
    return query.bind(1, table).bind(2, column).step();
}

// SQLite can tell, too, but takes every failure to look for a proof.
bool Database::hasMoved() const
{
    struct stat status = {};
    if (stat(m_path.c_str(), &status) != 0) {
        return errno == ENOENT || errno == ENOTDIR;
    }
    return status.st_dev != m_device || status.st_ino != m_inode;
}

void Database::watchJournal()
{
    const auto keep = [](void *pages, sqlite3 *, const char *, int now) {
        *static_cast<int *>(pages) = now;
        return SQLITE_OK;
    };
    m_journalPages = std::make_unique<int>(0);
    sqlite3_wal_hook(m_connection.get(), keep, m_journalPages.get());
}

Transaction::Transaction(Database &database)
    : m_database(database)
{
    m_database.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (m_open) {
        // Fails only when SQLite has rolled back already.
        sqlite3_exec(m_database.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
    }
}

void Transaction::commit()
{
    m_database.execute("COMMIT");
    m_open = false;
}

} // namespace rui
