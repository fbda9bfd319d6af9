// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/Samples.h"

namespace ImageView {

namespace {

std::uint16_t narrow(std::uint32_t value)
{
    return static_cast<std::uint16_t>(value);
}

void readBytes(const std::uint8_t *data, std::size_t count, std::uint16_t *out)
{
    for (std::size_t i = 0; i < count; ++i) {
        out[i] = data[i];
    }
}

void readWords(const std::uint8_t *data, std::size_t count, std::uint32_t mask, std::uint16_t *out)
{
    for (std::size_t i = 0; i < count; ++i) {
        out[i] = narrow((data[2 * i] | data[2 * i + 1] << 8U) & mask);
    }
}

// A sample of at most 12 bits touches two bytes, and never a third one.
void readStream(const std::uint8_t *data, std::size_t first, std::size_t count, std::size_t bits,
                std::uint16_t *out)
{
    const std::uint32_t mask = (1U << bits) - 1;
    std::size_t bit = first * bits;
    for (std::size_t i = 0; i < count; ++i, bit += bits) {
        const std::uint8_t *bytes = data + bit / 8;
        out[i] = narrow(static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8U) >> bit % 8 & mask);
    }
}

void readGroups(const std::uint8_t *data, std::size_t first, std::size_t count, std::uint32_t bits,
                std::uint16_t *out)
{
    const std::uint32_t lowBits = bits - 8;
    const std::uint32_t lowMask = (1U << lowBits) - 1;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t sample = first + i;
        const std::uint8_t *group = data + sample / 2 * 3;
        const bool isSecond = sample % 2 != 0;
        const std::uint32_t high = group[isSecond ? 2 : 0];
        const std::uint32_t low = static_cast<std::uint32_t>(group[1]) >> (isSecond ? 4U : 0U);
        out[i] = narrow(high << lowBits | (low & lowMask));
    }
}

} // namespace

void readSamples(const PixelFormat &format, const std::uint8_t *data, std::size_t first,
                 std::size_t count, std::uint16_t *out)
{
    const auto bits = static_cast<std::uint32_t>(format.bits);
    switch (format.packing) {
    case Packing::Bytes:
        readBytes(data + first, count, out);
        break;
    case Packing::Words:
        readWords(data + 2 * first, count, (1U << bits) - 1, out);
        break;
    case Packing::Stream:
        readStream(data, first, count, bits, out);
        break;
    case Packing::Groups:
        readGroups(data, first, count, bits, out);
        break;
    }
}

} // namespace ImageView
