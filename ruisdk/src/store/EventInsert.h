// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Ulid.h"
#include "store/Consent.h"
#include "store/Database.h"
#include "store/Event.h"

#include <optional>

namespace rui {

// How much is waiting for delivery.
struct Occupancy
{
    std::int64_t events = 0;
    std::int64_t bytes = 0;
};

// Under what an event is stored. Views: valid during the call.
struct Origin
{
    const Membership &membership;
    // The random id of the session.
    std::string_view run;
};

// The one transaction that stores an event: it checks the consent, numbers the event, stores it
// and tells what is waiting now. Between the check and the insert no opt-out can come. Used by
// one thread at a time, not longer than the database.
class EventInsert
{
public:
    explicit EventInsert(const Database &database);

    // Commits. Nothing when the epoch has passed: then nothing is stored. Throws SqliteError.
    std::optional<Occupancy> run(const Event &event, Origin origin, std::int64_t now);

private:
    // Where the event goes, and what stands there.
    struct Position
    {
        std::int64_t epoch = 0;
        std::int64_t seq = 0;
        std::int64_t total = 0;
        std::int64_t gone = 0;
        std::int64_t goneBytes = 0;
    };

    Position look();
    void insert(const Event &event, const Position &position, Origin origin, std::int64_t now);
    void rollBack() noexcept;

    sqlite3 *m_handle;
    Statement m_begin;
    Statement m_look;
    Statement m_insert;
    Statement m_commit;
    UlidSource m_ulids;
};

} // namespace rui
