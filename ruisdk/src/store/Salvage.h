// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace rui {

// What became of the events that waited in a damaged database.
struct Salvaged
{
    std::int64_t saved = 0;
    // At least one when something could not be read and nothing tells how much it was.
    std::int64_t lost = 0;
};

// Opens a database that is damaged, and keeps everybody from writing to it for as long as the
// object lives: what came later would be lost. Nothing when it cannot be opened at all. Throws
// Failure with RUI_BUSY when somebody writes.
std::optional<Database> openDamaged(const std::string &path,
                                    const std::shared_ptr<BusyLimit> &busyLimit);

// Copies into an empty database, which has the tables, what can be read of a damaged one: the
// consent, the events, the records of the library, and what was delivered; nothing of one that
// cannot be opened. Whatever stands before
// or behind a damaged page is found by its number. The damaged database is not changed. Counts the
// rest as lost. One transaction. Throws SqliteError when the empty database cannot be written.
Salvaged salvage(Database &into, const std::optional<Database> &damaged);

} // namespace rui
