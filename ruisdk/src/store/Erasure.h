// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

namespace rui {

// Deleted is deleted: what was deleted on the user's wish is left in no byte of the directory.
// That cannot be part of the transaction that deletes, and a reader holds it up; so the database
// keeps that it is still to be done until it has succeeded.

// Deletes every event, delivered or not, all at once: without the triggers that count each of them,
// and without overwriting them, which would take as much room as they had. Part of the caller's
// transaction. Throws SqliteError.
void deleteAllEvents(Database &database);

// Part of the caller's transaction, which deletes. Throws SqliteError.
void requestErasure(Database &database);

// Rebuilds the database without what was deleted, empties the journal, and removes what was set
// aside. False when somebody who reads or writes is in the way: it is to be tried again. Waits for
// nobody. Throws SqliteError.
bool finishErasure(Database &database);

} // namespace rui
