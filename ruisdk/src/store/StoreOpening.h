// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Failure.h"
#include "store/Database.h"
#include "store/StorePaths.h"

namespace rui {

struct OpeningOptions
{
    // Flush every commit to the device.
    bool syncEveryCommit = false;
    // Read the whole file for damage; otherwise only what opening needs is read.
    bool verify = false;
    // Create what is missing. A session in progress does not: a user who removes the directory
    // meanwhile does not want it back.
    bool create = true;
};

// Opens the database of a directory for writing. One that is proven damaged is set aside, counted,
// and replaced. Throws Failure; RUI_STORAGE when it is missing and must not be created.
Database openStore(const StorePaths &paths, const OpeningOptions &options,
                   const std::shared_ptr<BusyLimit> &busyLimit);

// What to say of a directory without a database.
Failure noEventsIn(const StorePaths &paths);

} // namespace rui
