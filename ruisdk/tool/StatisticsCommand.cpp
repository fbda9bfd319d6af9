// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"
#include "core/JsonWriter.h"
#include "core/TimeText.h"
#include "Printable.h"
#include "store/Statistics.h"
#include "TextTable.h"

namespace rui::tool {

namespace {

void writeOptional(JsonWriter &json, const char *key, const std::optional<std::string> &text)
{
    json.key(key);
    if (text) {
        json.string(*text);
    } else {
        json.null();
    }
}

std::string shownServer(const Statistics &statistics)
{
    if (!statistics.server) {
        return "not known yet";
    }
    return statistics.server->empty() ? "none: nothing is sent" : printable(*statistics.server);
}

std::string shownFailure(const Statistics &statistics)
{
    return statistics.lastFailure ? timeText(statistics.lastFailure->time) + " "
                                        + printable(statistics.lastFailure->reason)
                                  : "none";
}

void writeFailure(JsonWriter &json, const Statistics &statistics)
{
    json.key("lastFailure");
    if (!statistics.lastFailure) {
        json.null();
        return;
    }
    json.beginObject().key("time").string(timeText(statistics.lastFailure->time));
    json.key("reason").string(statistics.lastFailure->reason).endObject();
}

std::string jsonOf(const Statistics &statistics)
{
    JsonWriter json;
    json.beginObject();
    writeOptional(json, "client", statistics.client);
    writeOptional(json, "server", statistics.server);
    writeFailure(json, statistics);
    json.key("pending").integer(statistics.pending);
    json.key("delivered").integer(statistics.delivered);
    json.key("exported").integer(statistics.exported).key("lost").beginObject();
    for (const Statistics::LossCount &loss : statistics.losses) {
        json.key(loss.reason).integer(loss.count);
    }
    json.endObject().key("events").beginArray();
    for (const Statistics::EventCount &event : statistics.events) {
        json.beginObject().key("category").string(event.category).key("name").string(event.name);
        json.key("pending").integer(event.pending);
        json.key("delivered").integer(event.delivered);
        json.key("exported").integer(event.exported).endObject();
    }
    return json.endArray().endObject().text();
}

void printTables(const Statistics &statistics, std::ostream &out)
{
    TextTable totals;
    totals.add({"client", printable(statistics.client.value_or("none"))});
    totals.add({"server", shownServer(statistics)});
    totals.add({"last failure", shownFailure(statistics)});
    totals.add({"pending", std::to_string(statistics.pending)});
    totals.add({"delivered", std::to_string(statistics.delivered)});
    totals.add({"exported", std::to_string(statistics.exported)});
    totals.add({"lost", std::to_string(statistics.lost)});
    for (const Statistics::LossCount &loss : statistics.losses) {
        totals.add({"  " + loss.reason, std::to_string(loss.count)});
    }
    totals.write(out);
    out << '\n';
    TextTable events;
    events.add({"CATEGORY", "NAME", "PENDING", "DELIVERED", "EXPORTED"});
    for (const Statistics::EventCount &event : statistics.events) {
        events.add({printable(event.category), printable(event.name), std::to_string(event.pending),
                    std::to_string(event.delivered), std::to_string(event.exported)});
    }
    events.write(out);
}

} // namespace

void showStatistics(const Options &options, std::ostream &out)
{
    const RecordReader reader{StorePaths(options.directory)};
    const Statistics statistics = readStatistics(reader.database());
    if (options.format == Format::Json) {
        out << jsonOf(statistics) << '\n';
    } else {
        printTables(statistics, out);
    }
}

} // namespace rui::tool
