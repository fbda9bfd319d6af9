// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

namespace rui {

// Every limit of the library, with its reason. Tests lower them.
struct Limits
{
    // Undelivered events: a busy month of a machine that is never online.
    std::int64_t maxEvents = 10000;
    // Their texts; feature streams are up to 100 kB each.
    std::int64_t maxBytes = std::int64_t{50} * 1024 * 1024;
    // An older event says nothing about the product of today.
    std::chrono::hours maxAge{30 * 24};
    // One event; ten times the largest record that is known.
    std::int64_t maxEventBytes = std::int64_t{1024} * 1024;
    // Delivered events that stay readable on the machine.
    std::int64_t deliveredEvents = 1000;
    std::int64_t deliveredBytes = std::int64_t{10} * 1024 * 1024;
    // How long a call waits for another writer; a delivered batch takes some milliseconds.
    std::chrono::milliseconds callBusyLimit{5000};
};

// A product's description: one line of it, not a document.
constexpr std::int64_t maxDescriptionBytes = 1024;

} // namespace rui
