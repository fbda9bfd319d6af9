// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace rui {

// Where the time comes from; a test replaces it. Any thread may ask.
class Clock
{
public:
    virtual ~Clock() = default;

    // Nanoseconds since 1970 in UTC. May jump when somebody sets the machine's clock.
    virtual std::int64_t now() const = 0;

    // Nanoseconds since the machine was started, also while it slept. Nobody sets this one; it is
    // the same for all processes.
    virtual std::int64_t sinceBoot() const = 0;

    // Another one after each start of the machine. Where the system names none, another one for
    // each process.
    virtual std::string boot() const = 0;
};

// The machine's clock; lives as long as the process.
const Clock &systemClock();

constexpr std::int64_t nanosecondsPerMillisecond = 1000000;
constexpr std::int64_t nanosecondsPerSecond = 1000000000;

} // namespace rui
