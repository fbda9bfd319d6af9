// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"
#include "store/StorePaths.h"

namespace rui {

struct OpeningOptions
{
    // Flush every commit to the device.
    bool syncEveryCommit = false;
    // Read the whole file for damage; otherwise only what opening needs is read.
    bool verify = false;
};

// Opens the database of a directory for writing, creating both when they are missing. One that
// is proven damaged is set aside, counted, and replaced. Throws Failure.
Database openStore(const StorePaths &paths, const OpeningOptions &options,
                   const std::shared_ptr<BusyLimit> &busyLimit);

} // namespace rui
