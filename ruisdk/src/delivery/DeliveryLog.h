// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Log.h"
#include "delivery/Sender.h"

namespace rui {

// Says what a step of the delivery has come to. Steps in which nothing was tried are not worth a
// line. now: nanoseconds since 1970.
void logStep(Log &log, const Step &step, std::int64_t now);

} // namespace rui
