// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/StorePaths.h"

namespace rui {

// Reads the database and its journal from the first byte to the last. Throws Failure with
// RUI_STORAGE when the device does not give them.
void requireReadable(const StorePaths &paths);

} // namespace rui
