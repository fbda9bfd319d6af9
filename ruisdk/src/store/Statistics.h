// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace rui {

// What a directory holds and what became of its events.
struct Statistics
{
    struct EventCount
    {
        std::string category;
        std::string name;
        std::int64_t pending = 0;
        std::int64_t delivered = 0;
        std::int64_t exported = 0;
    };
    struct LossCount
    {
        std::string reason;
        std::int64_t count = 0;
    };

    // Nothing: before the first session, or after an opt-out.
    std::optional<std::string> client;
    // Where the last session delivers to; empty: nowhere. Nothing: not known yet.
    std::optional<std::string> server;
    // When a request failed last, in nanoseconds since 1970, and why. Nothing: none has.
    struct DeliveryFailure
    {
        std::int64_t time = 0;
        std::string reason;
    };
    std::optional<DeliveryFailure> lastFailure;
    std::int64_t pending = 0;
    // Since the beginning; only the last of them are still stored.
    std::int64_t delivered = 0;
    std::int64_t exported = 0; // handed over in a file; since the beginning, likewise
    std::int64_t lost = 0;
    std::vector<LossCount> losses;  // by reason
    std::vector<EventCount> events; // of what is stored, by category and name
};

// Throws SqliteError.
Statistics readStatistics(const Database &database);

} // namespace rui
