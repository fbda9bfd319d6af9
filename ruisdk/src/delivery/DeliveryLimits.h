// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace rui {

// Waits between tries, each a random time up to a limit, which doubles from the first to the last.
struct Backoff
{
    std::chrono::nanoseconds first;
    std::chrono::nanoseconds max;
};

// Every limit of the delivery, with its reason. Tests lower them.
struct DeliveryLimits
{
    // One request: what a collector takes with its default settings.
    std::size_t batchRecords = 100;
    std::size_t batchBytes = std::size_t{1024} * 1024;
    // Between two tries at a server that is away or overloaded.
    Backoff backoff{std::chrono::seconds(1), std::chrono::minutes(5)};
    // The same at one that answers as if it were the wrong one: somebody has to mend that first.
    Backoff slowBackoff{std::chrono::minutes(1), std::chrono::hours(1)};
    // What a server may ask for; more is a mistake of the server or a clock that was set.
    std::chrono::nanoseconds maxRetryAfter = std::chrono::hours(24);
    // A fleet that was asked to wait comes back spread over this share of the wait after it, and at
    // least over this time: a server that recovers must not meet all of it at once.
    double retryAfterSpread = 0.5;
    std::chrono::nanoseconds leastRetryAfterSpread = std::chrono::seconds(1);
    // How many single records may be refused in a row before the server is held for the wrong one;
    // the number doubles with each such try up to a whole batch, so that a row of bad records that
    // is longer does not stop the delivery.
    std::size_t refusalsInARow = 10;
    // An answer is a small JSON object; the rest of a larger one is not read.
    std::size_t responseBytes = std::size_t{64} * 1024;
    std::chrono::milliseconds connectTimeout = std::chrono::seconds(10);
    std::chrono::milliseconds transferTimeout = std::chrono::seconds(60);
    // Within the server itself, for example to another path.
    int redirects = 3;
};

} // namespace rui
