// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rui {

// The text in the gzip format. Throws Failure with RUI_INTERNAL when memory is short.
std::string gzip(const std::string &text);

} // namespace rui
