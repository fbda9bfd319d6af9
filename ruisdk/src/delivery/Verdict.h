// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "delivery/Transport.h"

#include <cstdint>

namespace rui {

// What an answer means for the records of the request.
struct Verdict
{
    enum class Kind {
        Delivered, // they arrived; `rejected` of them were refused for good
        Retry,     // they are to be sent again later
        Split,     // they are to be sent in smaller requests
        Refused    // they would be refused again
    };

    Kind kind = Kind::Retry;
    std::int64_t rejected = 0;
};

// Follows the OTLP standard: 429, 502, 503, 504 and no answer are tried again, every other 4xx and
// 5xx is not. A redirect to somewhere else is tried again: it is how a network asks for a log-in.
Verdict verdictOf(const Response &response);

} // namespace rui
