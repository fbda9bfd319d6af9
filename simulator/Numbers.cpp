// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Numbers.h"

#include <glib.h>

namespace Simulator {

namespace {

constexpr std::size_t MaximumDigits = 9;

} // namespace

std::optional<double> parsedRatio(const std::string &text)
{
    if (text.empty() || text.find_first_not_of("0123456789.eE-+") != std::string::npos) {
        return std::nullopt;
    }
    char *end = nullptr;
    const double value = g_ascii_strtod(text.c_str(), &end);
    if (end != text.c_str() + text.size() || !(value >= 0.0 && value <= 1.0)) {
        return std::nullopt;
    }
    return value;
}

std::optional<int> parsedCount(const std::string &text)
{
    if (text.empty() || text.size() > MaximumDigits
        || text.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    return static_cast<int>(g_ascii_strtoll(text.c_str(), nullptr, 10));
}

} // namespace Simulator
