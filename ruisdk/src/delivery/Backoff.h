// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/DeliveryLimits.h"

#include <functional>

namespace rui {

// Gives a random number from 0 to 1; a test makes it predictable.
using Jitter = std::function<double()>;
double randomJitter();

// How long to wait after so many failures in a row (1 is the first): a random time between nothing
// and the first limit * 2^(failures - 1), which grows up to the last limit.
std::chrono::nanoseconds waitAfterFailures(std::int64_t failures, const Backoff &backoff,
                                           const Jitter &jitter);

// How long to wait when the server has asked for a pause: never less, and a random share more.
std::chrono::nanoseconds waitWhenAsked(std::chrono::nanoseconds pause, const DeliveryLimits &limits,
                                       const Jitter &jitter);

} // namespace rui
