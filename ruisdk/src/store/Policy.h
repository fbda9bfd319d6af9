// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <optional>
#include <string>

namespace rui {

// What the machine's administrator, and the environment, allow. docs/analytics.md describes the
// file. Who asks whether something is forbidden and gets no answer takes it for forbidden.
struct Policy
{
    bool forbidsStoring = false;
    // Storing that is forbidden forbids delivery, too.
    bool forbidsDelivery = false;
    // DO_NOT_TRACK stands in the environment.
    bool isDoNotTrack = false;
    // The file is there, and cannot be read or makes no sense: everything is forbidden, and nothing
    // deleted. In one line that names the file and what is wrong.
    std::optional<std::string> problem;

    // The administrator has said so, in a file that makes sense: what waits is deleted.
    bool isProhibitedByAdministrator() const
    {
        return forbidsStoring && !isDoNotTrack && !problem;
    }
};

// Where the file is. Fixed when the library is built: an environment variable would let a user undo
// what the administrator has forbidden.
const char *policyPath();

// What the file says of this product. No file: nothing is forbidden.
Policy readPolicyFile(const std::string &path, const std::string &productId);

// What the file at policyPath() and the environment say together. Reads the environment: to be
// called in a thread of the program, which may change it.
Policy readPolicy(const std::string &productId);

// The file at policyPath() forbids to deliver the events of some product in this database. Throws
// SqliteError.
bool isDeliveryForbidden(const Database &database);

// Somebody has paused delivery in this directory, see ruiPauseDelivery. Throws SqliteError.
bool isDeliveryPaused(const Database &database);

// Throws Failure with RUI_FORBIDDEN and the reason in one line when isDeliveryForbidden(), or when
// the environment says so.
void requireDelivery(const Database &database);

} // namespace rui
