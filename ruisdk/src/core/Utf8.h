// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace rui {

// True when the bytes are well-formed UTF-8: no overlong form, no surrogate, nothing above
// U+10FFFF.
bool isUtf8(std::string_view text) noexcept;

} // namespace rui
