// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Consent.h"
#include "store/Database.h"
#include "store/Event.h"

#include <optional>

namespace rui {

// How much is waiting for delivery. Errs on the high side when the numbers of the events have
// gaps.
struct Occupancy
{
    std::int64_t events = 0;
    std::int64_t bytes = 0;
};

// The one statement that stores an event: it checks the consent, numbers the event, stores it
// and tells what is waiting now. Used by one thread at a time, not longer than the database.
class EventInsert
{
public:
    explicit EventInsert(const Database &database);

    // Commits, unless the caller has a transaction open. Nothing when the epoch has passed: then
    // nothing is stored. Throws SqliteError.
    std::optional<Occupancy> run(const Event &event, const Membership &membership,
                                 std::int64_t now);

private:
    Statement m_statement;
};

} // namespace rui
