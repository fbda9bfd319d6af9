// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/StorePaths.h"

namespace rui {

// Creates the directory with its parents, for this user alone. One that exists and is empty is
// closed to others if it is ours; any other one is left as it is, as somebody may rely on it.
// Throws Failure with RUI_STORAGE.
void makePrivateDirectory(const std::string &path);

// Creates an empty file with mode 0600; one of ours that exists is closed to others, and not
// opened. SQLite gives its side files the same mode. Throws Failure with RUI_STORAGE.
void makePrivateFile(const std::string &path);

// A symbolic link in the place of one of the directory's files would let us write to a file of
// somebody else. Throws Failure with RUI_STORAGE.
void requirePlainFiles(const StorePaths &paths);

} // namespace rui
