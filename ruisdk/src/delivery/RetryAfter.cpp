// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/RetryAfter.h"

#include "core/Clock.h"

#include <curl/curl.h>

#include <algorithm>

namespace rui {

namespace {

// More digits than any sensible number has; below what overflows.
constexpr std::size_t maxDigits = 9;

std::optional<std::int64_t> wholeSeconds(const std::string &text)
{
    if (text.empty() || text.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    return std::stoll(text.size() > maxDigits ? std::string(maxDigits, '9') : text);
}

std::optional<std::int64_t> secondsUntil(const std::string &date, std::int64_t now)
{
    const std::time_t time = curl_getdate(date.c_str(), nullptr);
    if (time < 0) {
        return std::nullopt;
    }
    return time - now / nanosecondsPerSecond;
}

} // namespace

std::optional<std::chrono::nanoseconds> parseRetryAfter(const std::string &text, std::int64_t now,
                                                        std::chrono::nanoseconds limit)
{
    auto seconds = wholeSeconds(text);
    if (!seconds) {
        seconds = secondsUntil(text, now);
    }
    if (!seconds) {
        return std::nullopt;
    }
    const std::chrono::nanoseconds wait = std::chrono::seconds(std::max<std::int64_t>(0, *seconds));
    return std::min(wait, limit);
}

} // namespace rui
