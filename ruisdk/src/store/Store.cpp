// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Store.h"

#include "store/Losses.h"
#include "store/Quota.h"
#include "store/SqliteError.h"

#include <filesystem>

namespace rui {

namespace {

// Twice: once for damage, once for a file that another process has replaced meanwhile.
constexpr int maxReopenings = 2;

} // namespace

Store::Store(StorePaths paths, OpeningOptions options, Limits limits, const Clock &clock)
    : m_paths(std::move(paths))
    , m_options(options)
    , m_limits(limits)
    , m_clock(clock)
    , m_busyLimit(std::make_shared<BusyLimit>(limits.callBusyLimit))
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
}

void Store::leave()
{
    m_product.reset();
}

void Store::withdraw(const Product &product)
{
    recovering(
        [&](Connection &current) { withdrawConsent(current.database, product, m_clock.now()); });
}

void Store::add(const Event &event)
{
    if (event.size() > m_limits.maxEventBytes) {
        recovering(
            [](Connection &current) { addLoss(current.database, LossReason::EventSize, 1); });
        throw Failure(RUI_TOO_LARGE, "an event of " + std::to_string(event.size()) + " bytes");
    }
    Occupancy occupancy;
    recovering([&](Connection &current) { occupancy = insert(current, event); });
    keepToQuota(occupancy);
}

void Store::stopWaiting(bool stop) noexcept
{
    m_busyLimit->giveUp = stop;
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
    const auto occupancy = current.insert.run(event, m_membership, m_clock.now());
    if (!occupancy) {
        throw Failure(RUI_OPTED_OUT, "consent was withdrawn");
    }
    return *occupancy;
}

void Store::reopen(bool verify)
{
    m_connection.reset();
    // A user who removes the directory during a session does not want it back.
    if (!std::filesystem::exists(m_paths.database())) {
        throw Failure(RUI_STORAGE, m_paths.database() + ": was removed during the session");
    }
    OpeningOptions options = m_options;
    options.verify = verify;
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

} // namespace rui
