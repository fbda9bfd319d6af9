// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rui {

// Checks of what a caller passes. Each throws Failure with RUI_BAD_ARGUMENT.

// A text of any length that is not null and is UTF-8.
std::string_view textArgument(const char *text);

// The same, up to maxDescriptionBytes.
std::string descriptionArgument(const char *text);

// 0 or 1.
bool flagArgument(std::int64_t flag);

} // namespace rui
