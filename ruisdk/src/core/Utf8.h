// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rui {

// True when the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above
// U+10FFFF.
bool isUtf8(std::string_view text) noexcept;

// How many bytes the first character of a text takes that is not empty; 0 when it does not begin
// with a well-formed one.
std::size_t characterLength(std::string_view text) noexcept;

// The text with a question mark for each control character of ASCII, and for each byte that is not
// UTF-8.
std::string oneLine(std::string_view text);

} // namespace rui
