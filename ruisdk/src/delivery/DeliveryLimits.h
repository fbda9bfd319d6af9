// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace rui {

// Every limit of the delivery, with its reason. Tests lower them.
struct DeliveryLimits
{
    // One request: what a collector takes with its default settings.
    std::size_t batchRecords = 100;
    std::size_t batchBytes = std::size_t{1024} * 1024;
    // Between two tries, each a random time up to this one, which doubles.
    std::chrono::nanoseconds firstBackoff = std::chrono::seconds(1);
    std::chrono::nanoseconds maxBackoff = std::chrono::minutes(5);
    // What a server may ask for; more is a mistake of the server or a clock that was set.
    std::chrono::nanoseconds maxRetryAfter = std::chrono::hours(24);
    // An answer is a small JSON object; the rest of a larger one is not read.
    std::size_t responseBytes = std::size_t{64} * 1024;
    std::chrono::milliseconds connectTimeout = std::chrono::seconds(10);
    std::chrono::milliseconds transferTimeout = std::chrono::seconds(60);
    // Within the server itself, for example to another path.
    int redirects = 3;
};

} // namespace rui
