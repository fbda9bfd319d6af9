// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

// Numbers as people type them, independent of the locale. Nothing is returned for a text that is
// not wholly such a number.
namespace Simulator {

// A ratio from 0 to 1, for example "0.05".
std::optional<double> parsedRatio(const std::string &text);

// A non-negative whole number of at most 9 digits.
std::optional<int> parsedCount(const std::string &text);

} // namespace Simulator
