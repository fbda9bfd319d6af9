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

// The same, from random bytes that are fetched for many at once. Used by one thread at a time;
// must not be used on both sides of a fork.
class UlidSource
{
public:
    std::string make(std::int64_t unixNanoseconds);

private:
    std::array<UlidEntropy, 64> m_entropy{};
    std::size_t m_used = 64;
};

} // namespace rui
