// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TablePrinter.h"

#include "core/TimeText.h"

#include <algorithm>

namespace rui::tool {

namespace {

bool isControl(char character)
{
    return static_cast<unsigned char>(character) < 0x20 || character == '\x7F';
}

std::string printable(const std::string &text)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string out;
    for (const char character : text) {
        if (isControl(character)) {
            const auto code = static_cast<unsigned char>(character);
            out += {'\\', 'x', digits[code >> 4], digits[code & 0x0F]};
        } else {
            out += character;
        }
    }
    return out;
}

// In characters: the bytes that do not continue a UTF-8 sequence.
std::size_t widthOf(const std::string &text)
{
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins));
}

} // namespace

void TablePrinter::print(const Record &record)
{
    if (!m_headed) {
        m_headed = true;
        add({"TIME", "STATE", "CATEGORY", "NAME", "TEXT"});
    }
    add({timeText(record.time), record.state, printable(record.category), printable(record.name),
         printable(record.text.value_or(""))});
}

void TablePrinter::flush()
{
    for (const Row &row : m_rows) {
        write(row);
    }
    m_rows.clear();
    m_out.flush();
}

void TablePrinter::add(Row row)
{
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
        m_widths[i] = std::max(m_widths[i], widthOf(row[i]));
    }
    m_rows.push_back(std::move(row));
}

void TablePrinter::write(const Row &row)
{
    std::string line;
    for (std::size_t i = 0; i < m_widths.size(); ++i) {
        line += row[i] + std::string(m_widths[i] - widthOf(row[i]) + 2, ' ');
    }
    line += row.back();
    line.erase(line.find_last_not_of(' ') + 1);
    m_out << line << '\n';
}

} // namespace rui::tool
