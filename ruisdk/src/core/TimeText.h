// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rui {

// A time in UTC with milliseconds, as in "2026-11-20T18:18:57.042Z".
std::string timeText(std::int64_t unixNanoseconds);

// The reverse, in nanoseconds since 1970: a date, or a date and a time with or without a fraction
// of a second, always UTC; the "Z" may be missing. Nothing when the text is none of these.
std::optional<std::int64_t> parseTime(std::string_view text);

} // namespace rui
