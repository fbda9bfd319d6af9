// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Consent.h"

#include "core/Failure.h"
#include "core/Random.h"
#include "store/Erasure.h"
#include "store/Notices.h"

#include <optional>

namespace rui {

namespace {

std::optional<std::string> clientId(const Database &database)
{
    Statement query = database.prepare("SELECT client FROM state");
    if (!query.step() || query.isNull(0)) {
        return std::nullopt;
    }
    return std::string(query.text(0));
}

std::string newClientId(const Database &database)
{
    std::string id = randomUuid();
    database.prepare("UPDATE state SET client = ?1").bind(1, id).run();
    return id;
}

void bindProduct(Statement &statement, const std::string &client, const Product &product)
{
    statement.bind(1, client)
        .bind(2, product.productId)
        .bind(3, product.application)
        .bind(4, product.edition)
        .bind(5, product.language)
        .bind(6, product.version)
        .bind(7, product.build);
}

std::int64_t resourceId(const Database &database, const std::string &client, const Product &product)
{
    Statement insert = database.prepare(
        "INSERT OR IGNORE INTO resource(client, product, application, edition, language, version,"
        " build) VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7)");
    bindProduct(insert, client, product);
    insert.run();
    Statement query = database.prepare(
        "SELECT id FROM resource WHERE client = ?1 AND product = ?2 AND application = ?3"
        " AND edition = ?4 AND language = ?5 AND version = ?6 AND build = ?7");
    bindProduct(query, client, product);
    query.step();
    return query.integer(0);
}

// The newest description of the product under this client id; 0 when there is none.
std::int64_t newestResource(const Database &database, const std::string &client)
{
    Statement query =
        database.prepare("SELECT coalesce(max(id), 0) FROM resource WHERE client = ?1");
    query.bind(1, client).step();
    return query.integer(0);
}

void setWithdrawn(const Database &database, const std::string &token)
{
    database.prepare("UPDATE state SET withdrawn = ?1").bind(1, token).run();
}

// Part of the caller's transaction, as all that follows.
void deleteRecords(Database &database)
{
    deleteAllEvents(database);
    database.execute("DELETE FROM loss; DELETE FROM notice WHERE kind = 'loss'");
}

void retireClient(Database &database)
{
    database.execute("DELETE FROM resource WHERE id NOT IN (SELECT resource FROM notice);"
                     "UPDATE state SET epoch = epoch + 1, client = NULL,"
                     " not_before = 0, failures = 0");
    requestErasure(database);
}

// Deletes what the client has stored, and leaves the record of the opt-out.
void endClient(Database &database, const std::string &client, const Product *product,
               std::int64_t now)
{
    const std::int64_t seq = nextSequence(database);
    const std::int64_t resource = product != nullptr ? resourceId(database, client, *product)
                                                     : newestResource(database, client);
    deleteRecords(database);
    if (resource != 0) {
        addNotice(database, {seq, NoticeKind::OptOut, now, resource, ""});
    }
    retireClient(database);
}

// Part of the caller's transaction.
void carryOut(Database &database, const std::string &token, const Product *product,
              std::int64_t now)
{
    if (const auto client = clientId(database)) {
        endClient(database, *client, product, now);
    }
    setWithdrawn(database, token);
}

bool isPending(const Database &database, const std::string &requested)
{
    Statement query = database.prepare("SELECT withdrawn FROM state");
    query.step();
    return requested.empty() || query.isNull(0) || query.text(0) != requested;
}

// A database that is new, of an earlier version, or was begun in the place of a damaged one knows
// no mark yet.
void bindToMark(Database &database, WithdrawalMark &mark)
{
    const WithdrawalMark::Content content = mark.read();
    setWithdrawn(database, content.isThere ? content.done : mark.create());
}

} // namespace

Membership joinConsent(Database &database, WithdrawalMark &mark, const Product &product,
                       std::int64_t now)
{
    Transaction transaction(database);
    // Read within the transaction: the withdrawal of another process is either seen here, or sees
    // this session.
    const std::string token = mark.read().requested;
    if (token.empty()) {
        throw Failure(RUI_STORAGE, database.path() + ": the record of the consent is missing");
    }
    if (isPending(database, token)) {
        carryOut(database, token, nullptr, now);
    }
    const auto known = clientId(database);
    const std::string client = known ? *known : newClientId(database);
    Membership membership;
    membership.resource = resourceId(database, client, product);
    membership.epoch = database.integer("SELECT epoch FROM state");
    membership.token = token;
    transaction.commit();
    mark.noteDone(token);
    return membership;
}

void withdrawConsent(Database &database, WithdrawalMark &mark, const Product *product,
                     std::int64_t now)
{
    Transaction transaction(database);
    const std::string token = mark.read().requested;
    carryOut(database, token, product, now);
    transaction.commit();
    mark.noteDone(token);
}

void endConsent(Database &database)
{
    Transaction transaction(database);
    const bool isEmpty =
        database.integer("SELECT client IS NULL AND NOT EXISTS(SELECT 1 FROM event)"
                         " AND NOT EXISTS(SELECT 1 FROM delivered) FROM state")
        != 0;
    if (!isEmpty) {
        deleteRecords(database);
        retireClient(database);
        transaction.commit();
    }
}

void forgetRetiredClients(Database &database)
{
    database.execute("DELETE FROM resource WHERE client IS NOT (SELECT client FROM state)"
                     " AND id NOT IN (SELECT resource FROM notice)");
    requestErasure(database);
}

bool isWithdrawalPending(const Database &database, WithdrawalMark &mark)
{
    return isPending(database, mark.read().requested);
}

void settleWithdrawal(Database &database, WithdrawalMark &mark, std::int64_t now)
{
    if (database.integer("SELECT withdrawn IS NULL FROM state") != 0) {
        bindToMark(database, mark);
    }
    if (!isWithdrawalPending(database, mark)) {
        return;
    }
    withdrawConsent(database, mark, nullptr, now);
    if (mark.read().requested.empty()) {
        setWithdrawn(database, mark.create());
    }
}

} // namespace rui
