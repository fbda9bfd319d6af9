// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Random.h"

#include <sys/random.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace rui {

void fillRandom(void *buffer, std::size_t size)
{
    auto *out = static_cast<unsigned char *>(buffer);
    while (size > 0) {
        const ssize_t got = getrandom(out, size, 0);
        if (got < 0 && errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "getrandom");
        }
        if (got > 0) {
            out += got;
            size -= static_cast<std::size_t>(got);
        }
    }
}

std::uint64_t random64()
{
    std::uint64_t value = 0;
    fillRandom(&value, sizeof value);
    return value;
}

std::string randomUuid()
{
    static constexpr char digits[] = "0123456789abcdef";
    std::array<unsigned char, 16> bytes{};
    fillRandom(bytes.data(), bytes.size());
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            text += '-';
        }
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 0x0F];
    }
    return text;
}

} // namespace rui
