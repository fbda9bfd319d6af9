// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace rui {

// True when the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above
// U+10FFFF.
bool isUtf8(std::string_view text) noexcept;

// How many bytes the first character of a text takes that is not empty; 0 when it does not begin
// with a well-formed one.
std::size_t characterLength(std::string_view text) noexcept;

} // namespace rui
