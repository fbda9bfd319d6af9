// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Consent.h"

#include "core/Random.h"
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

} // namespace

Membership joinConsent(Database &database, const Product &product)
{
    Transaction transaction(database);
    const auto known = clientId(database);
    const std::string client = known ? *known : newClientId(database);
    Membership membership;
    membership.resource = resourceId(database, client, product);
    membership.epoch = database.integer("SELECT epoch FROM state");
    transaction.commit();
    return membership;
}

void withdrawConsent(Database &database, const Product &product, std::int64_t now)
{
    // What is deleted is overwritten, too; otherwise it would stay readable in free pages.
    database.execute("PRAGMA secure_delete = ON");
    Transaction transaction(database);
    const auto client = clientId(database);
    if (!client) {
        return;
    }
    const std::int64_t seq = nextSequence(database);
    database.execute("DELETE FROM event; DELETE FROM loss; DELETE FROM notice WHERE kind = 'loss'");
    addNotice(database, {seq, NoticeKind::OptOut, now, resourceId(database, *client, product), ""});
    database.execute("UPDATE state SET epoch = epoch + 1, client = NULL,"
                     " not_before = 0, failures = 0");
    transaction.commit();
}

} // namespace rui
