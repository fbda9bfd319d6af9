// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Clock.h"
#include "core/Limits.h"
#include "store/EventInsert.h"
#include "store/StoreOpening.h"

#include <optional>

namespace rui {

// One instance's connection to the database of a directory. Notices when the file is damaged or
// replaced, and goes on with the new one. Used by one thread at a time. Throws Failure.
class Store
{
public:
    // busyLimit: ends the waiting of a call for a lock from another thread.
    //
    // A database that is locked, or has no room, is opened by the first function that needs it:
    // the user can withdraw consent meanwhile.
    Store(StorePaths paths, OpeningOptions options, Limits limits, const Clock &clock,
          std::shared_ptr<BusyLimit> busyLimit);

    // Begins a session; events are stored under the consent that holds now.
    void join(const Product &product);

    // Ends the session.
    void leave();

    // Commits an event of the session. RUI_OPTED_OUT after an opt-out by anybody.
    void add(const Event &event);

    // See ruiOptOut. When it fails, the request is kept: no session stores or sends anything
    // before it is carried out.
    void withdraw(const Product &product);

    // Keeps where the session delivers to, for those who want to know; empty: nowhere. What fails
    // is of no importance.
    void noteServer(const std::string &url) noexcept;

    // Empty when there is none.
    std::string clientId();

    // Deletes what was recorded and retires the client id, as a withdrawal does, but leaves no
    // record of it: the machine's administrator has forbidden to store. Open sessions are
    // RUI_OPTED_OUT from here on.
    void forget();

    // Whether delivery rests, for everybody who uses the directory.
    void setPaused(bool paused);
    bool isPaused();

    // Anything waits for delivery.
    bool hasRecords();

    // An opt-out waits for delivery.
    bool hasOptOut();

    // The write-ahead log has grown so that the worker should look after it now.
    bool hasLargeJournal() const;

private:
    struct Connection
    {
        explicit Connection(Database opened)
            : database(std::move(opened))
            , insert(database)
        {}

        Database database;
        EventInsert insert;
    };

    Connection &connection();
    template <typename Action>
    void recovering(Action action);
    Occupancy insert(Connection &current, const Event &event) const;
    void reopen(bool verify);
    void rejoin();
    void requireConsent();
    void store(const Event &event);
    void keepToQuota(const Occupancy &occupancy) noexcept;
    void boundJournal() noexcept;
    void noteUnstored() noexcept;

    StorePaths m_paths;
    OpeningOptions m_options;
    Limits m_limits;
    const Clock &m_clock;
    std::shared_ptr<BusyLimit> m_busyLimit;
    WithdrawalMark m_mark;
    std::optional<Connection> m_connection;
    std::optional<Product> m_product;
    Membership m_membership;
    // The random id of the session; stays when the database is replaced.
    std::string m_run;
    // Events that could not be stored, and are not counted in the database yet.
    std::int64_t m_unstored = 0;
};

} // namespace rui
