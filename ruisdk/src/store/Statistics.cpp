// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Statistics.h"

namespace rui {

namespace {

std::vector<Statistics::LossCount> readLosses(const Database &database)
{
    std::vector<Statistics::LossCount> losses;
    Statement query = database.prepare("SELECT reason, lost + told FROM loss ORDER BY reason");
    while (query.step()) {
        losses.push_back({std::string(query.text(0)), query.integer(1)});
    }
    return losses;
}

std::vector<Statistics::EventCount> readEvents(const Database &database)
{
    std::vector<Statistics::EventCount> events;
    Statement query =
        database.prepare("SELECT category, name, count(*) FILTER (WHERE state = 'pending'),"
                         " count(*) FILTER (WHERE state = 'delivered'),"
                         " count(*) FILTER (WHERE state = 'exported') FROM record"
                         " GROUP BY category, name ORDER BY category, name");
    while (query.step()) {
        events.push_back({std::string(query.text(0)), std::string(query.text(1)), query.integer(2),
                          query.integer(3), query.integer(4)});
    }
    return events;
}

std::optional<std::string> optionalText(const Database &database, const char *sql)
{
    Statement query = database.prepare(sql);
    return query.step() && !query.isNull(0) ? std::optional<std::string>(query.text(0))
                                            : std::nullopt;
}

std::optional<Statistics::DeliveryFailure> readLastFailure(const Database &database)
{
    if (!database.hasColumn("state", "failure")) {
        return std::nullopt;
    }
    Statement query = database.prepare("SELECT failed_at, failure FROM state");
    if (!query.step() || query.isNull(1)) {
        return std::nullopt;
    }
    return Statistics::DeliveryFailure{query.integer(0), std::string(query.text(1))};
}

} // namespace

Statistics readStatistics(const Database &database)
{
    Statistics statistics;
    statistics.client = optionalText(database, "SELECT client FROM state");
    if (database.hasColumn("state", "server")) {
        statistics.server = optionalText(database, "SELECT server FROM state");
    }
    statistics.lastFailure = readLastFailure(database);
    statistics.pending = database.integer("SELECT count(*) FROM record WHERE state = 'pending'");
    statistics.delivered = database.integer("SELECT delivered FROM state");
    statistics.exported = database.hasColumn("state", "exported")
                              ? database.integer("SELECT exported FROM state")
                              : 0;
    statistics.losses = readLosses(database);
    for (const Statistics::LossCount &loss : statistics.losses) {
        statistics.lost += loss.count;
    }
    statistics.events = readEvents(database);
    return statistics;
}

} // namespace rui
