// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Backoff.h"

#include "core/Random.h"

#include <algorithm>
#include <cmath>

namespace rui {

double randomJitter()
{
    constexpr double steps = 9007199254740992.0; // 2^53: what a double holds exactly
    return static_cast<double>(random64() >> 11) / steps;
}

std::chrono::nanoseconds waitAfterFailures(std::int64_t failures, const Backoff &backoff,
                                           const Jitter &jitter)
{
    const double doublings = static_cast<double>(std::clamp<std::int64_t>(failures - 1, 0, 60));
    const double first = static_cast<double>(backoff.first.count());
    const double most = static_cast<double>(backoff.max.count());
    const double ceiling = std::min(first * std::exp2(doublings), most);
    return std::chrono::nanoseconds(static_cast<std::int64_t>(ceiling * jitter()));
}

std::chrono::nanoseconds waitWhenAsked(std::chrono::nanoseconds pause, const DeliveryLimits &limits,
                                       const Jitter &jitter)
{
    const double share = static_cast<double>(pause.count()) * limits.retryAfterSpread;
    const double spread =
        std::max(share, static_cast<double>(limits.leastRetryAfterSpread.count()));
    return pause + std::chrono::nanoseconds(static_cast<std::int64_t>(spread * jitter()));
}

} // namespace rui
