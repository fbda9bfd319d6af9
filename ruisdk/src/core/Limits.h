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
    // Pages of the write-ahead log from which on the worker is woken at once, and from which on a
    // caller moves them itself: only a burst that outruns the worker gets there. A worker that is
    // woken at a quarter of the first doubles the slowest calls of a burst (p99 56 us, then 110).
    int largeJournalPages = 4000;
    int maxJournalPages = 16000;
    // Free pages that stay in the file for the next events: 1 MiB. More of them are given back, so
    // many in one transaction, which then takes a few milliseconds.
    std::int64_t freePagesKept = 256;
    std::int64_t pagesOfAStep = 256;
    // A database of an earlier version is rebuilt for that once no more pages are in use: 4 MiB.
    std::int64_t quickRebuildPages = 1024;
    // The journal of a session that is idle is cut off when it is larger.
    std::uintmax_t idleJournalBytes = std::uintmax_t{4} * 1024 * 1024;
    // How long a call waits for another writer; a delivered batch takes some milliseconds.
    std::chrono::milliseconds callBusyLimit{5000};
    // How long the end of a session may take, without and with an opt-out that is to be sent.
    std::chrono::milliseconds stopLimit{1900};
    std::chrono::milliseconds optOutStopLimit{4900};
};

// A product's description: one line of it, not a document.
constexpr std::int64_t maxDescriptionBytes = 1024;

} // namespace rui
