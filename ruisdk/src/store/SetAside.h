// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/StorePaths.h"

namespace rui {

// Renames a damaged database and its journal, keeping every byte; returns its new name. Throws
// Failure with RUI_STORAGE. The caller holds the opening lock.
std::string setAside(const StorePaths &paths);

// Removes everything that was set aside of the database with this path: what a user has deleted
// may stand there, too. Throws Failure with RUI_STORAGE.
void removeSetAside(const std::string &database);

} // namespace rui
