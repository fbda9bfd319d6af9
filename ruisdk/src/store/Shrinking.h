// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Limits.h"
#include "store/Database.h"

namespace rui {

// Makes the database give free space back to the file system from now on. Comes before everything
// else that is done to a new database; for an existing one it takes effect with the next VACUUM.
// Throws SqliteError.
void allowShrinking(Database &database);

// Gives back a part of the space that delivered and deleted events have left, in one short
// transaction. Returns false when no more than the reserve is left. The file becomes smaller with
// the next checkpoint. Throws SqliteError.
bool shrinkByOneStep(Database &database, const Limits &limits);

// Gives back the journal's space if it is larger than an idle one needs to be and nobody uses it at
// this moment. Throws nothing: it is tried again.
void shrinkJournal(const Database &database, const Limits &limits) noexcept;

} // namespace rui
