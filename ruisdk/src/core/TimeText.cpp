// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/TimeText.h"

#include "core/Clock.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace rui {

namespace {

std::int64_t floorDivide(std::int64_t value, std::int64_t divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

// Takes ".123" from the front of the text, in nanoseconds; digits below a nanosecond are dropped.
std::int64_t takeFraction(std::string_view &text)
{
    if (text.empty() || text.front() != '.') {
        return 0;
    }
    text.remove_prefix(1);
    std::int64_t nanoseconds = 0;
    std::int64_t unit = nanosecondsPerSecond / 10;
    while (!text.empty() && text.front() >= '0' && text.front() <= '9') {
        nanoseconds += unit * (text.front() - '0');
        unit /= 10;
        text.remove_prefix(1);
    }
    return nanoseconds;
}

// timegm accepts the 31st of February; what it makes of it reads differently.
std::optional<std::int64_t> secondsOf(std::tm fields)
{
    const std::tm wanted = fields;
    const std::time_t seconds = timegm(&fields);
    if (fields.tm_mon != wanted.tm_mon || fields.tm_mday != wanted.tm_mday
        || fields.tm_hour != wanted.tm_hour) {
        return std::nullopt;
    }
    return seconds;
}

} // namespace

std::string timeText(std::int64_t unixNanoseconds)
{
    const std::time_t seconds = floorDivide(unixNanoseconds, nanosecondsPerSecond);
    const std::int64_t rest = unixNanoseconds - seconds * nanosecondsPerSecond;
    std::tm utc = {};
    gmtime_r(&seconds, &utc);
    std::array<char, 32> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", &utc);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%s.%03dZ", date.data(),
                  static_cast<int>(rest / nanosecondsPerMillisecond));
    return text.data();
}

std::optional<std::int64_t> parseTime(std::string_view text)
{
    const std::string copy(text);
    std::tm fields = {};
    const char *end = strptime(copy.c_str(), "%Y-%m-%dT%H:%M:%S", &fields);
    if (end == nullptr) {
        fields = {};
        end = strptime(copy.c_str(), "%Y-%m-%d", &fields);
    }
    const auto seconds = end == nullptr ? std::nullopt : secondsOf(fields);
    if (!seconds) {
        return std::nullopt;
    }
    std::string_view rest(end);
    const std::int64_t fraction = takeFraction(rest);
    if (!rest.empty() && rest != "Z") {
        return std::nullopt;
    }
    return *seconds * nanosecondsPerSecond + fraction;
}

} // namespace rui
