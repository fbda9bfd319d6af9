// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rui::tool {

// The text with escapes for what a terminal would obey instead of showing it, as in "\\x0a" for a
// control character of ASCII or a byte that is not UTF-8, and "\\u202e" for another control
// character, a mark of the direction, a line separator, or a character without a width.
std::string printable(const std::string &text);

// The text for a cell of a spreadsheet: with an apostrophe before it when it would be taken for a
// formula, which spreadsheets then show as a text.
std::string withoutFormula(const std::string &text);

} // namespace rui::tool
