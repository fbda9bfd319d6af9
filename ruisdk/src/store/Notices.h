// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <string>

namespace rui {

// Records that the library itself makes. They are not counted among the events, and no limit
// pushes them out.
enum class NoticeKind { OptOut, Loss };

struct Notice
{
    std::int64_t seq;
    NoticeKind kind;
    std::int64_t time;
    std::int64_t resource;
    std::string text;
};

// The number of the next record. Part of the caller's transaction. Throws SqliteError.
std::int64_t nextSequence(const Database &database);

// Sees to it that the numbers of events that are to be deleted are not given again, even when none
// is left. Part of the caller's transaction. Throws SqliteError.
void keepNumbers(Database &database);

// Stores a notice. Part of the caller's transaction. Throws SqliteError.
void addNotice(Database &database, const Notice &notice);

} // namespace rui
