// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/Verdict.h"

#include "delivery/PartialSuccess.h"

namespace rui {

Verdict verdictOf(const Response &response)
{
    const int status = response.status;
    if (status >= 200 && status < 300) {
        return {Verdict::Kind::Delivered, rejectedRecords(response.body)};
    }
    if (status == 400) {
        return {Verdict::Kind::Malformed};
    }
    if (status == 413) {
        return {Verdict::Kind::TooLarge};
    }
    if (status < 400 || status == 429 || status == 502 || status == 503 || status == 504) {
        return {Verdict::Kind::Retry};
    }
    return {Verdict::Kind::WrongPlace};
}

} // namespace rui
