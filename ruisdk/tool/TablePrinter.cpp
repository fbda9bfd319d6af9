// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TablePrinter.h"

#include "core/TimeText.h"
#include "Printable.h"

namespace rui::tool {

void TablePrinter::print(const Record &record)
{
    if (!m_headed) {
        m_headed = true;
        m_table.add({"TIME", "STATE", "CATEGORY", "NAME", "TEXT"});
    }
    m_table.add({timeText(record.time), record.state, printable(record.category),
                 printable(record.name), printable(record.text.value_or(""))});
}

void TablePrinter::flush()
{
    m_table.write(m_out);
    m_out.flush();
}

} // namespace rui::tool
