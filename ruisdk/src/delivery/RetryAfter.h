// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace rui {

// Reads a Retry-After header in either form: a number of seconds, or a date, from which `now`
// (nanoseconds since 1970) is taken. At most `limit`; a date that has passed is zero. Nothing
// when the text is neither.
std::optional<std::chrono::nanoseconds> parseRetryAfter(const std::string &text, std::int64_t now,
                                                        std::chrono::nanoseconds limit);

} // namespace rui
