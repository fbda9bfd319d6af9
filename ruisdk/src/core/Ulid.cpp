// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Ulid.h"

#include "core/Random.h"

namespace rui {

namespace {

constexpr char alphabet[] = "0123456789ABCDEFGHJKMNPQRSTVWXYZ";

void appendBase32(std::string &text, std::uint64_t value, int characters)
{
    for (int i = characters - 1; i >= 0; --i) {
        text += alphabet[(value >> (5 * i)) & 0x1F];
    }
}

std::uint64_t fortyBits(const UlidEntropy &entropy, std::size_t from)
{
    std::uint64_t value = 0;
    for (std::size_t i = from; i < from + 5; ++i) {
        value = (value << 8) | entropy[i];
    }
    return value;
}

std::uint64_t millisecondsOf(std::int64_t unixNanoseconds)
{
    return unixNanoseconds < 0 ? 0 : static_cast<std::uint64_t>(unixNanoseconds / 1000000);
}

} // namespace

std::string ulidText(std::uint64_t milliseconds, const UlidEntropy &entropy)
{
    std::string text;
    text.reserve(26);
    appendBase32(text, milliseconds & 0xFFFFFFFFFFFFU, 10);
    appendBase32(text, fortyBits(entropy, 0), 8);
    appendBase32(text, fortyBits(entropy, 5), 8);
    return text;
}

std::string makeUlid(std::int64_t unixNanoseconds)
{
    UlidEntropy entropy{};
    fillRandom(entropy.data(), entropy.size());
    return ulidText(millisecondsOf(unixNanoseconds), entropy);
}

std::string UlidSource::make(std::int64_t unixNanoseconds)
{
    if (m_used == m_entropy.size()) {
        fillRandom(m_entropy.data(), sizeof m_entropy);
        m_used = 0;
    }
    return ulidText(millisecondsOf(unixNanoseconds), m_entropy[m_used++]);
}

} // namespace rui
