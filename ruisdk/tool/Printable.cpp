// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Printable.h"

#include "core/Utf8.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace rui::tool {

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

// Above ASCII. The bidirectional ones reorder what stands around them.
constexpr std::array<Range, 6> obeyed = {{
    {0x80, 0x9F},     // control characters of eight bits
    {0x61C, 0x61C},   // a mark of the direction
    {0x200B, 0x200F}, // without a width; marks of the direction
    {0x2028, 0x202E}, // separators of lines and paragraphs; embeddings and overrides
    {0x2060, 0x206F}, // without a width; isolates
    {0xFEFF, 0xFEFF}, // without a width
}};

bool isObeyed(char32_t character)
{
    return std::any_of(obeyed.begin(), obeyed.end(), [=](const Range &range) {
        return character >= range.first && character <= range.last;
    });
}

// Of a well-formed sequence of two or more bytes.
char32_t decode(std::string_view sequence)
{
    constexpr std::array<unsigned char, 5> leadMasks = {0, 0, 0x1F, 0x0F, 0x07};
    char32_t character = static_cast<unsigned char>(sequence[0]) & leadMasks.at(sequence.size());
    for (const char byte : sequence.substr(1)) {
        character = character << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return character;
}

std::string hexadecimal(char32_t value, unsigned digits)
{
    std::string text;
    for (unsigned left = digits; left > 0; --left) {
        text += "0123456789abcdef"[value >> 4 * (left - 1) & 0x0FU];
    }
    return text;
}

bool isPlain(unsigned char byte)
{
    return byte >= 0x20 && byte < 0x7F;
}

std::string shown(std::string_view character)
{
    if (character.size() == 1) {
        const auto byte = static_cast<unsigned char>(character[0]);
        return isPlain(byte) ? std::string(character) : "\\x" + hexadecimal(byte, 2);
    }
    const char32_t code = decode(character);
    return isObeyed(code) ? "\\u" + hexadecimal(code, 4) : std::string(character);
}

// What begins a formula, the wide forms of it that some languages' spreadsheets know, and the
// white space that some pass over.
constexpr std::array<const char *, 11> formulaStarts = {
    "=", "+", "-", "@", "\t", "\r", "\n", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};

} // namespace

std::string printable(const std::string &text)
{
    std::string out;
    for (std::string_view rest = text; !rest.empty();) {
        const std::size_t length = std::max<std::size_t>(1, characterLength(rest));
        out += shown(rest.substr(0, length));
        rest.remove_prefix(length);
    }
    return out;
}

std::string withoutFormula(const std::string &text)
{
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    const bool isFormula =
        std::any_of(formulaStarts.begin(), formulaStarts.end(), [&](const std::string_view begin) {
            return text.compare(start, begin.size(), begin) == 0;
        });
    return isFormula ? "'" + text : text;
}

} // namespace rui::tool
