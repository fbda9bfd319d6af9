// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "DeliveryFixture.h"

namespace rui::test {

namespace {

std::vector<std::string> firstColumn(const std::vector<Row> &rows)
{
    std::vector<std::string> column;
    for (const Row &row : rows) {
        column.push_back(row.front());
    }
    return column;
}

} // namespace

DeliveryFixture::DeliveryFixture()
{
    m_clock.time = startTime;
}

Store &DeliveryFixture::store()
{
    if (!m_store) {
        m_store.emplace(StorePaths(m_path), OpeningOptions{}, m_limits, m_clock,
                        std::make_shared<BusyLimit>(std::chrono::seconds(5)));
        m_store->join({"2026110001", "nerixViewer", "Standard", "US English", "7.1.0", "11271"});
    }
    return *m_store;
}

void DeliveryFixture::track(const std::string &text, const std::string &name)
{
    store().add({"C", name, "", text});
}

Sender &DeliveryFixture::sender()
{
    if (!m_sender) {
        store();
        const StorePaths paths(m_path);
        m_database.emplace(
            openStore(paths, {}, std::make_shared<BusyLimit>(std::chrono::seconds(5))));
        m_transport.emplace(parseServerAddress(m_server.url()), m_deliveryLimits);
        m_sender.emplace(*m_database, paths.senderLock(), *m_transport, m_clock, m_limits,
                         m_deliveryLimits, m_jitter, m_memory);
    }
    return *m_sender;
}

Step DeliveryFixture::deliver()
{
    Step step;
    do {
        step = sender().step();
    } while (step.kind == Step::Kind::Progress);
    return step;
}

std::vector<Row> DeliveryFixture::losses() const
{
    return query(m_path, "SELECT reason, lost + told FROM loss ORDER BY reason");
}

std::vector<std::string> DeliveryFixture::pendingTexts() const
{
    return firstColumn(
        query(m_path, "SELECT text FROM record WHERE state = 'pending' ORDER BY seq"));
}

std::vector<std::string> DeliveryFixture::deliveredTexts() const
{
    return firstColumn(query(m_path, "SELECT text FROM delivered ORDER BY seq"));
}

std::vector<std::vector<std::string>> DeliveryFixture::sentTexts() const
{
    std::vector<std::vector<std::string>> sent;
    for (const Request &request : m_server.requests()) {
        std::string body = request.body;
        for (std::size_t at = body.find('\''); at != std::string::npos;
             at = body.find('\'', at + 2)) {
            body.insert(at, "'");
        }
        sent.push_back(firstColumn(query(
            m_path, "SELECT coalesce(json_extract(record.value, '$.body.stringValue'),"
                    " json_extract(record.value, '$.eventName'))"
                    " FROM json_each('"
                        + body
                        + "', '$.resourceLogs') AS resource,"
                          " json_each(resource.value, '$.scopeLogs[0].logRecords') AS record")));
    }
    return sent;
}

double DeliveryFixture::secondsUntilNextTry() const
{
    const std::int64_t due = std::stoll(queryValue(m_path, "SELECT not_before FROM state"));
    return due == 0 ? 0.0 : static_cast<double>(due - m_clock.time) / 1e9;
}

} // namespace rui::test
