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

// Gives a file that root has opened to the owner of the directory that it stands in, whom it would
// lock out otherwise; does nothing for anybody else. Throws nothing: where that is not allowed, it
// is said by whoever cannot open the file.
void giveToOwnerOfDirectory(int descriptor, const std::string &path) noexcept;

// A symbolic link in the place of one of the directory's files would let us write to a file of
// somebody else. Throws Failure with RUI_STORAGE.
void requirePlainFiles(const StorePaths &paths);

} // namespace rui
