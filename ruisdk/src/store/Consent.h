// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/Database.h"
#include "store/WithdrawalMark.h"

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
    // The last withdrawal that was requested when the session began.
    std::string token;
};

// Begins a session under the consent that holds now. After an opt-out, and the first time, this
// is a new consent with a new client id. A withdrawal that was requested is carried out before, in
// the same transaction. Throws SqliteError, and Failure with RUI_STORAGE when the mark is missing
// or damaged: openStore() repairs it.
Membership joinConsent(Database &database, WithdrawalMark &mark, const Product &product,
                       std::int64_t now);

// The opt-out, in one transaction; see ruiOptOut. Carries out whatever the mark requests. Without
// a client id there is nothing to withdraw. product: what the record of the opt-out says; null:
// what the last session has said. What is deleted is still to be erased. Throws SqliteError.
void withdrawConsent(Database &database, WithdrawalMark &mark, const Product *product,
                     std::int64_t now);

// Ends the consent without a record of it; one that waits for delivery stays. What is deleted is
// still to be erased. Does nothing when there is nothing to delete. One transaction. Throws
// SqliteError.
void endConsent(Database &database);

// Deletes the client ids that nothing waits for any more; they are still to be erased. Part of the
// caller's transaction. Throws SqliteError.
void forgetRetiredClients(Database &database);

// A withdrawal was requested and is not carried out: nothing may be sent. Throws SqliteError, and
// Failure when the mark cannot be read.
bool isWithdrawalPending(const Database &database, WithdrawalMark &mark);

// Binds a database that is new to the mark of its directory, and carries out a withdrawal that was
// requested and failed. The caller holds the opening lock. Throws Failure.
void settleWithdrawal(Database &database, WithdrawalMark &mark, std::int64_t now);

} // namespace rui
