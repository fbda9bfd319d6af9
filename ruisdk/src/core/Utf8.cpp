// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Utf8.h"

#include <cstdint>
#include <cstring>

namespace rui {

namespace {

using Byte = unsigned char;

// The length of a sequence and what its second byte may be; a length of 0 is no first byte.
struct Lead
{
    std::size_t length;
    Byte secondFrom;
    Byte secondTo;
};

Lead leadOf(Byte first) noexcept
{
    if (first >= 0xC2 && first <= 0xDF) {
        return {2, 0x80, 0xBF};
    }
    if (first >= 0xE0 && first <= 0xEF) {
        // E0 would be overlong below A0; ED would be a surrogate from A0 on.
        return {3, first == 0xE0 ? Byte{0xA0} : Byte{0x80},
                first == 0xED ? Byte{0x9F} : Byte{0xBF}};
    }
    if (first >= 0xF0 && first <= 0xF4) {
        return {4, first == 0xF0 ? Byte{0x90} : Byte{0x80},
                first == 0xF4 ? Byte{0x8F} : Byte{0xBF}};
    }
    return {0, 0, 0};
}

bool isContinuation(Byte byte) noexcept
{
    return (byte & 0xC0) == 0x80;
}

// The length of the multi-byte sequence that text starts with, or 0.
std::size_t sequenceLength(std::string_view text) noexcept
{
    const auto at = [&text](std::size_t i) { return static_cast<Byte>(text[i]); };
    const Lead lead = leadOf(at(0));
    if (lead.length == 0 || text.size() < lead.length) {
        return 0;
    }
    bool valid = at(1) >= lead.secondFrom && at(1) <= lead.secondTo;
    for (std::size_t i = 2; i < lead.length; ++i) {
        valid = valid && isContinuation(at(i));
    }
    return valid ? lead.length : 0;
}

// Records are nearly all ASCII, so eight bytes are looked at in one step.
std::size_t asciiPrefix(std::string_view text) noexcept
{
    std::size_t length = 0;
    for (std::uint64_t word = 0; text.size() - length >= sizeof word; length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & 0x8080808080808080U) != 0) {
            break;
        }
    }
    while (length < text.size() && static_cast<Byte>(text[length]) < 0x80) {
        ++length;
    }
    return length;
}

} // namespace

std::size_t characterLength(std::string_view text) noexcept
{
    return static_cast<Byte>(text[0]) < 0x80 ? 1 : sequenceLength(text);
}

bool isUtf8(std::string_view text) noexcept
{
    text.remove_prefix(asciiPrefix(text));
    while (!text.empty()) {
        const std::size_t length = sequenceLength(text);
        if (length == 0) {
            return false;
        }
        text.remove_prefix(length);
        text.remove_prefix(asciiPrefix(text));
    }
    return true;
}

std::string oneLine(std::string_view text)
{
    std::string line;
    while (!text.empty()) {
        const std::size_t length = characterLength(text);
        const auto first = static_cast<unsigned char>(text[0]);
        if (length == 0 || first < 0x20 || first == 0x7F) {
            line += '?';
        } else {
            line += text.substr(0, length);
        }
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return line;
}

} // namespace rui
