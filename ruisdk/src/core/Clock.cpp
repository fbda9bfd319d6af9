// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Clock.h"

#include <chrono>

namespace rui {

namespace {

class SystemClock : public Clock
{
public:
    std::int64_t now() const override
    {
        const auto sinceEpoch = std::chrono::system_clock::now().time_since_epoch();
        return std::chrono::duration_cast<std::chrono::nanoseconds>(sinceEpoch).count();
    }
};

} // namespace

const Clock &systemClock()
{
    static const SystemClock clock;
    return clock;
}

} // namespace rui
