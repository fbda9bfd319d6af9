// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Store.h"

#include "core/Random.h"
#include "store/ClockMarks.h"
#include "store/Erasure.h"
#include "store/Losses.h"
#include "store/Policy.h"
#include "store/Quota.h"
#include "store/SqliteError.h"

namespace rui {

namespace {

// Twice: once for damage, once for a file that another process has replaced meanwhile.
constexpr int maxReopenings = 2;

// The withdrawal holds without it; the worker and the next opening try again.
void tryErasure(Database &database)
{
    try {
        finishErasure(database);
    } catch (const Failure &) {
        // A full disk, for example.
    }
}

template <typename Action>
void tolerating(Action action) noexcept
{
    try {
        action();
    } catch (const std::exception &) {
        // The caller's event is stored all the same.
    }
}

bool mayPass(const Failure &failure)
{
    return failure.result() == RUI_FULL || failure.result() == RUI_BUSY;
}

} // namespace

Store::Store(StorePaths paths, OpeningOptions options, Limits limits, const Clock &clock,
             std::shared_ptr<BusyLimit> busyLimit)
    : m_paths(std::move(paths))
    , m_options(options)
    , m_limits(limits)
    , m_clock(clock)
    , m_busyLimit(std::move(busyLimit))
    , m_mark(m_paths.consent())
{
    try {
        m_connection.emplace(openStore(m_paths, m_options, m_busyLimit));
        m_options.create = false;
    } catch (const Failure &failure) {
        if (!mayPass(failure) || !m_mark.read().isThere) {
            throw;
        }
    }
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
    if (m_mark.read().requested.empty()) {
        reopen(false);
    }
    recovering([&](Connection &current) {
        m_membership = joinConsent(current.database, m_mark, product, m_clock.now());
        markClock(current.database, m_clock, m_limits);
    });
    m_product = product;
    m_run = randomUuid();
}

void Store::leave()
{
    m_product.reset();
}

void Store::withdraw(const Product &product)
{
    try {
        m_mark.request();
    } catch (const Failure &) {
        // Then the database is all there is to keep it.
    }
    recovering([&](Connection &current) {
        withdrawConsent(current.database, m_mark, &product, m_clock.now());
        tryErasure(current.database);
    });
}

void Store::noteServer(const std::string &url) noexcept
{
    try {
        connection()
            .database.prepare("UPDATE state SET server = ?1 WHERE server IS NOT ?1")
            .bind(1, url)
            .run();
    } catch (const std::exception &) {
        // A full disk, for example.
    }
}

void Store::forget()
{
    recovering([](Connection &current) {
        endConsent(current.database);
        tryErasure(current.database);
    });
}

void Store::setPaused(bool paused)
{
    recovering([=](const Connection &current) {
        current.database.prepare("UPDATE state SET paused = ?1").bind(1, paused ? 1 : 0).run();
    });
}

bool Store::isPaused()
{
    return isDeliveryPaused(connection().database);
}

bool Store::hasRecords()
{
    return connection().database.integer("SELECT EXISTS(SELECT 1 FROM event)"
                                         " OR EXISTS(SELECT 1 FROM notice)")
           != 0;
}

std::string Store::clientId()
{
    std::string id;
    recovering([&](const Connection &current) {
        Statement query = current.database.prepare("SELECT client FROM state");
        id = query.step() ? query.text(0) : std::string_view();
    });
    return id;
}

bool Store::hasOptOut()
{
    return connection().database.integer("SELECT EXISTS(SELECT 1 FROM notice"
                                         " WHERE kind = 'optOut')")
           != 0;
}

void Store::add(const Event &event)
{
    requireConsent();
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
    m_connection.emplace(openStore(m_paths, options, m_busyLimit));
    m_options.create = false;
    if (m_product) {
        rejoin();
    }
}

// In another database the session goes on, unless consent was withdrawn since it began.
void Store::rejoin()
{
    const std::string token = m_membership.token;
    Membership joined;
    if (m_mark.read().requested == token) {
        joined = joinConsent(m_connection->database, m_mark, *m_product, m_clock.now());
        markClock(m_connection->database, m_clock, m_limits);
    }
    m_membership = joined.token == token ? joined : Membership{-1, 0, token};
}

void Store::requireConsent()
{
    if (m_membership.token != m_mark.current()) {
        throw Failure(RUI_OPTED_OUT, "consent was withdrawn");
    }
}

void Store::keepToQuota(const Occupancy &occupancy) noexcept
{
    if (!exceeds(occupancy, m_limits)) {
        return;
    }
    // The event is stored, which is what the caller is told; when this fails, the next one tries
    // again.
    tolerating([this] {
        recovering([this](Connection &current) { enforceQuota(current.database, m_limits); });
    });
}

void Store::boundJournal() noexcept
{
    if (!m_connection) {
        return;
    }
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
    // When this fails, they are counted with the next event that is stored.
    tolerating([this] {
        recovering([this](Connection &current) {
            addLoss(current.database, LossReason::Storage, m_unstored);
        });
        m_unstored = 0;
    });
}

} // namespace rui
