// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Options.h"

#include <atomic>
#include <ostream>

namespace rui::tool {

// Prints what is stored. Throws Failure.
void list(const Options &options, std::ostream &out);

// The same, and then what is added, within 100 ms, until stop is set or nothing can be written.
// Waits for a directory that does not exist yet, and goes on with a database that replaces another
// one.
void follow(const Options &options, std::ostream &out, const std::atomic<bool> &stop);

} // namespace rui::tool
