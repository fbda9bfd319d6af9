// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Printer.h"

#include <array>
#include <vector>

namespace rui::tool {

// Aligned columns. Rows are kept until flush(), so that a column is as wide as its widest text;
// columns only grow when more rows follow. Control characters are shown as escapes.
class TablePrinter : public Printer
{
public:
    explicit TablePrinter(std::ostream &out)
        : m_out(out)
    {}

    void print(const Record &record) override;
    void flush() override;

private:
    using Row = std::array<std::string, 5>;

    void add(Row row);
    void write(const Row &row);

    std::ostream &m_out;
    std::vector<Row> m_rows;
    std::array<std::size_t, 4> m_widths{};
    bool m_headed = false;
};

} // namespace rui::tool
