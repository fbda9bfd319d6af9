// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Options.h"

#include <memory>
#include <ostream>

namespace rui::tool {

// Writes records in one format.
class Printer
{
public:
    virtual ~Printer() = default;

    // Called once, before the first record.
    virtual void begin() {}
    virtual void print(const Record &record) = 0;
    // Called when no further record is at hand for now.
    virtual void flush() = 0;
};

std::unique_ptr<Printer> makePrinter(Format format, std::ostream &out);

} // namespace rui::tool
