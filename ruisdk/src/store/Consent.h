// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <string>

namespace rui {

// What a session says about the program; sent with every event.
struct Product
{
    std::string productId;
    std::string application;
    std::string edition;
    std::string language;
    std::string version;
    std::string build;
};

// What a session stores events under.
struct Membership
{
    std::int64_t epoch = 0;
    std::int64_t resource = 0;
};

// Begins a session under the consent that holds now. After an opt-out, and the first time, this
// is a new consent with a new client id. Throws SqliteError.
Membership joinConsent(Database &database, const Product &product);

// The opt-out, in one transaction; see ruiOptOut. Without a client id there is nothing to
// withdraw and nothing changes. Throws SqliteError.
void withdrawConsent(Database &database, const Product &product, std::int64_t now);

} // namespace rui
