// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

namespace rui {

// The version of the database that this library writes.
std::int64_t newestSchemaVersion();

// Brings a database of an older version up to the newest one, in one transaction; does nothing to
// one that is there already. Events stay as they are. The caller holds the opening lock. Throws
// SqliteError.
void migrateSchema(Database &database);

} // namespace rui
