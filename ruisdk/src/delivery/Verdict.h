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
        Delivered,  // they arrived; `rejected` of them were refused for good
        Retry,      // they are to be sent again later
        WrongPlace, // no records would be taken here as it is now; they are to be sent again slowly
        Malformed,  // one of them is bad
        TooLarge    // one of them is too large, or all of them together
    };

    Kind kind = Kind::Retry;
    std::int64_t rejected = 0;
};

// 429, 502, 503, 504 and no answer are tried again. So is a redirect to somewhere else: it is how a
// network asks for a log-in. 400 and 413 are the only answers that speak of the records.
Verdict verdictOf(const Response &response);

} // namespace rui
