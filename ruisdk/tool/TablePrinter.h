// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Printer.h"
#include "TextTable.h"

namespace rui::tool {

// Aligned columns. Rows are kept until flush(), so that a column is as wide as its widest text.
// What a terminal would obey is shown as escapes.
class TablePrinter : public Printer
{
public:
    explicit TablePrinter(std::ostream &out)
        : m_out(out)
    {}

    void print(const Record &record) override;
    void flush() override;

private:
    std::ostream &m_out;
    TextTable m_table;
    bool m_headed = false;
};

} // namespace rui::tool
