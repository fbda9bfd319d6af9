// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace rui {

using UlidEntropy = std::array<std::uint8_t, 10>;

// A ULID: 48 bits of milliseconds since 1970 and 80 random bits, as 26 characters of Crockford's
// base 32. Sorts by time. A time outside of 48 bits is cut to them.
std::string ulidText(std::uint64_t milliseconds, const UlidEntropy &entropy);

// A fresh ULID for an event of this time.
std::string makeUlid(std::int64_t unixNanoseconds);

} // namespace rui
