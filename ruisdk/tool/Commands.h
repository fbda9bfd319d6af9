// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Options.h"

#include <ostream>

namespace rui::tool {

// Each carries out one command. Throws Failure.

void showStatistics(const Options &options, std::ostream &out);

// Delivers what waits now, whatever was scheduled, and says how far it is. Throws Failure when
// something is left, with the reason; what the server refuses is left.
void sendNow(const Options &options, std::ostream &out);

// Writes what waits to a new file instead of sending it, and says how much it was.
void handOverTo(const Options &options, std::ostream &out);

void purgeAll(const Options &options, std::ostream &out);

} // namespace rui::tool
