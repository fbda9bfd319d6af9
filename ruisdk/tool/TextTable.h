// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace rui::tool {

// Rows of texts in aligned columns. A column is as wide as its widest text so far, and does not
// become narrower after write().
class TextTable
{
public:
    void add(std::vector<std::string> row);

    // Writes the rows that were added since the last time.
    void write(std::ostream &out);

private:
    std::string line(const std::vector<std::string> &row) const;

    std::vector<std::vector<std::string>> m_rows;
    std::vector<std::size_t> m_widths;
};

} // namespace rui::tool
