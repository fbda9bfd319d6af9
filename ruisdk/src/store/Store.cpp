// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Store.h"

#include "core/Random.h"
#include "store/Losses.h"
#include "store/Quota.h"
#include "store/SqliteError.h"

namespace rui {

namespace {

// Twice: once for damage, once for a file that another process has replaced meanwhile.
constexpr int maxReopenings = 2;

// What an opt-out deletes stands in the journal, too. Nobody is waited for: the next one who
// opens or checkpoints erases it otherwise.
void eraseJournal(const Database &database)
{
    sqlite3_busy_handler(database.handle(), nullptr, nullptr);
    sqlite3_wal_checkpoint_v2(database.handle(), nullptr, SQLITE_CHECKPOINT_TRUNCATE, nullptr,
                              nullptr);
    database.waitForLocks();
}

} // namespace

Store::Store(StorePaths paths, OpeningOptions options, Limits limits, const Clock &clock,
             std::shared_ptr<BusyLimit> busyLimit)
    : m_paths(std::move(paths))
    , m_options(options)
    , m_limits(limits)
    , m_clock(clock)
    , m_busyLimit(std::move(busyLimit))
{
    m_connection.emplace(openStore(m_paths, m_options, m_busyLimit));
}

template <typename Action>
void Store::recovering(Action action)
{
    for (int reopenings = 0;; ++reopenings) {
        try {
            action(connection());
            // Looked at afterwards: what was committed to a file that had been moved away is not
            // in the database that others read.
            if (!m_connection->database.hasMoved()) {
                return;
            }
            if (reopenings == maxReopenings) {
                throw Failure(RUI_STORAGE, m_paths.database() + ": keeps being replaced");
            }
            reopen(false);
        } catch (const SqliteError &error) {
            if (!error.isDamage() || reopenings == maxReopenings) {
                throw;
            }
            reopen(true);
        }
    }
}

void Store::join(const Product &product)
{
    recovering([&](Connection &current) { m_membership = joinConsent(current.database, product); });
    m_product = product;
    m_run = randomUuid();
}

void Store::leave()
{
    m_product.reset();
}

void Store::withdraw(const Product &product)
{
    recovering([&](Connection &current) {
        withdrawConsent(current.database, product, m_clock.now());
        eraseJournal(current.database);
    });
}

bool Store::hasOptOut()
{
    return connection().database.integer("SELECT EXISTS(SELECT 1 FROM notice"
                                         " WHERE kind = 'optOut')")
           != 0;
}

void Store::add(const Event &event)
{
    if (event.size() > m_limits.maxEventBytes) {
        recovering(
            [](Connection &current) { addLoss(current.database, LossReason::EventSize, 1); });
        throw Failure(RUI_TOO_LARGE, "an event of " + std::to_string(event.size()) + " bytes");
    }
    try {
        store(event);
    } catch (const Failure &failure) {
        m_unstored += failure.result() != RUI_OPTED_OUT ? 1 : 0;
        throw;
    }
    noteUnstored();
    boundJournal();
}

void Store::store(const Event &event)
{
    Occupancy occupancy;
    recovering([&](Connection &current) { occupancy = insert(current, event); });
    keepToQuota(occupancy);
}

bool Store::hasLargeJournal() const
{
    return m_connection && m_connection->database.journalPages() >= m_limits.largeJournalPages;
}

Store::Connection &Store::connection()
{
    if (!m_connection) {
        reopen(false);
    }
    return *m_connection;
}

Occupancy Store::insert(Connection &current, const Event &event) const
{
    const auto occupancy = current.insert.run(event, {m_membership, m_run}, m_clock.now());
    if (!occupancy) {
        throw Failure(RUI_OPTED_OUT, "consent was withdrawn");
    }
    return *occupancy;
}

void Store::reopen(bool verify)
{
    m_connection.reset();
    OpeningOptions options = m_options;
    options.verify = verify;
    options.create = false;
    m_connection.emplace(openStore(m_paths, options, m_busyLimit));
    if (m_product) {
        m_membership = joinConsent(m_connection->database, *m_product);
    }
}

void Store::keepToQuota(const Occupancy &occupancy) noexcept
{
    if (!exceeds(occupancy, m_limits)) {
        return;
    }
    try {
        enforceQuota(m_connection->database, m_limits);
    } catch (const std::exception &) {
        // The event is stored, which is what the caller is told; the next one tries again.
    }
}

void Store::boundJournal() noexcept
{
    sqlite3 *database = m_connection->database.handle();
    if (m_connection->database.journalPages() >= m_limits.maxJournalPages) {
        sqlite3_wal_checkpoint_v2(database, nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    }
}

void Store::noteUnstored() noexcept
{
    if (m_unstored == 0) {
        return;
    }
    try {
        addLoss(m_connection->database, LossReason::Storage, m_unstored);
        m_unstored = 0;
    } catch (const std::exception &) {
        // Counted with the next event that is stored.
    }
}

} // namespace rui
