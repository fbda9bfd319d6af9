// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TextTable.h"

#include <algorithm>

namespace rui::tool {

namespace {

// In characters: the bytes that do not continue a UTF-8 sequence.
std::size_t widthOf(const std::string &text)
{
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins));
}

} // namespace

void TextTable::add(std::vector<std::string> row)
{
    m_widths.resize(std::max(m_widths.size(), row.size()));
    // The last column is not padded: its texts may be very long.
    for (std::size_t i = 0; i + 1 < row.size(); ++i) {
        m_widths[i] = std::max(m_widths[i], widthOf(row[i]));
    }
    m_rows.push_back(std::move(row));
}

void TextTable::write(std::ostream &out)
{
    for (const auto &row : m_rows) {
        out << line(row) << '\n';
    }
    m_rows.clear();
}

std::string TextTable::line(const std::vector<std::string> &row) const
{
    std::string text;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const bool last = i + 1 == row.size();
        text += row[i] + (last ? "" : std::string(m_widths[i] - widthOf(row[i]) + 2, ' '));
    }
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

} // namespace rui::tool
