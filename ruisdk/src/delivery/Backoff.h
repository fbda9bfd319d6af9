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
// and firstBackoff * 2^(failures - 1), which grows up to maxBackoff.
std::chrono::nanoseconds backoffAfter(std::int64_t failures, const DeliveryLimits &limits,
                                      const Jitter &jitter);

} // namespace rui
