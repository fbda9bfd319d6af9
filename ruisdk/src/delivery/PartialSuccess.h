// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace rui {

// How many records the server says it has refused, in the JSON text of a successful answer; 0 when
// it does not say so, or the text is something else.
std::int64_t rejectedRecords(const std::string &body);

} // namespace rui
