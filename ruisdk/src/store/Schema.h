// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

namespace rui {

// False for an empty database. Throws Failure with RUI_UNSUPPORTED for a database of a newer
// version or of another program, SqliteError with isDamage() for one that lacks what its version
// says it has.
bool hasSchema(const Database &database);

// Creates the tables in an empty database. Throws SqliteError.
void createSchema(Database &database);

} // namespace rui
