// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "DeliveryFixture.h"

namespace {

using namespace rui;
using namespace rui::test;

class Otlp : public DeliveryFixture
{
protected:
    std::string sentBody()
    {
        deliver();
        const auto requests = m_server.requests();
        return requests.empty() ? "(nothing)" : requests.back().body;
    }

    void fixIds()
    {
        change(m_path, "UPDATE resource SET client = '11111111-2222-4333-8444-555555555555' || id");
        change(m_path, "UPDATE event SET uid = '0000000000000000000000000' || seq,"
                       " run = '66666666-7777-4888-8999-000000000000'");
    }
};

constexpr const char *resourceJson =
    R"({"resource":{"attributes":[)"
    R"({"key":"service.name","value":{"stringValue":"nerixViewer"}},)"
    R"({"key":"service.version","value":{"stringValue":"7.1.0"}},)"
    R"({"key":"rui.product.id","value":{"stringValue":"2026110001"}},)"
    R"({"key":"rui.product.build","value":{"stringValue":"11271"}},)"
    R"({"key":"rui.product.edition","value":{"stringValue":"Standard"}},)"
    R"({"key":"rui.product.language","value":{"stringValue":"US English"}},)"
    R"({"key":"rui.client.id","value":{"stringValue":"11111111-2222-4333-8444-5555555555551"}}]},)"
    R"("scopeLogs":[{"scope":{"name":"ruiSDK","version":"7.1.0"},"logRecords":[)";

TEST_F(Otlp, RequestIsThisText)
{
    store().add({"Camera", "Opened", "s1", R"({"CameraNr":0})"});
    m_clock.time = startTime + 1;
    store().add({"Model", "a2A*", "", {}});
    fixIds();
    EXPECT_EQ(sentBody(),
              std::string(R"({"resourceLogs":[)") + resourceJson
                  + R"({"timeUnixNano":"1795199937000000000",)"
                    R"("observedTimeUnixNano":"1795199937000000000","severityNumber":9,)"
                    R"("eventName":"rui.Camera.Opened",)"
                    R"("body":{"stringValue":"{\"CameraNr\":0}"},"attributes":[)"
                    R"({"key":"log.record.uid",)"
                    R"("value":{"stringValue":"00000000000000000000000001"}},)"
                    R"({"key":"rui.event.category","value":{"stringValue":"Camera"}},)"
                    R"({"key":"rui.event.name","value":{"stringValue":"Opened"}},)"
                    R"({"key":"rui.session.id","value":{"stringValue":"s1"}},)"
                    R"({"key":"rui.run.id",)"
                    R"("value":{"stringValue":"66666666-7777-4888-8999-000000000000"}}]},)"
                    R"({"timeUnixNano":"1795199937000000001",)"
                    R"("observedTimeUnixNano":"1795199937000000001","severityNumber":9,)"
                    R"("eventName":"rui.Model.a2A*","attributes":[)"
                    R"({"key":"log.record.uid",)"
                    R"("value":{"stringValue":"00000000000000000000000002"}},)"
                    R"({"key":"rui.event.category","value":{"stringValue":"Model"}},)"
                    R"({"key":"rui.event.name","value":{"stringValue":"a2A*"}},)"
                    R"({"key":"rui.session.id","value":{"stringValue":""}},)"
                    R"({"key":"rui.run.id",)"
                    R"("value":{"stringValue":"66666666-7777-4888-8999-000000000000"}}]})"
                    R"(]}]}]})");
}

TEST_F(Otlp, RecordThatIsNotJsonIsSentVerbatim)
{
    track("{\"broken\": 'x'\n");
    deliver();
    EXPECT_EQ(sentTexts(), (std::vector<std::vector<std::string>>{{"{\"broken\": 'x'\n"}}));
}

TEST_F(Otlp, NeighboursWithOneResourceShareItAndAnUpdateBeginsAnother)
{
    track("1");
    track("2");
    store().join({"2026110001", "nerixViewer", "Standard", "US English", "7.2.0", "12000"});
    track("3");
    const std::string body = sentBody();
    const auto count = [&body](const std::string &text) {
        int found = 0;
        for (std::size_t at = body.find(text); at != std::string::npos;
             at = body.find(text, at + 1)) {
            ++found;
        }
        return found;
    };
    EXPECT_EQ(count("\"resource\":"), 2);
    EXPECT_EQ(count("7.2.0"), 1);
    EXPECT_EQ(sentTexts(), (std::vector<std::vector<std::string>>{{"1", "2", "3"}}));
}

TEST_F(Otlp, RequestIsAGzipPostOfJsonThatSaysNothingAboutTheMachine)
{
    track("1");
    deliver();
    const Request request = m_server.requests().at(0);
    EXPECT_EQ(request.line, "POST /v1/logs HTTP/1.1");
    const std::string length = request.headers.at("content-length");
    const std::string host = m_server.url().substr(7);
    EXPECT_EQ(request.headers, (std::map<std::string, std::string>{
                                   {"accept", "application/json"},
                                   {"content-encoding", "gzip"},
                                   {"content-length", length},
                                   {"content-type", "application/json"},
                                   {"host", host},
                                   {"user-agent", "ruiSDK/7.1.0"},
                               }));
}

} // namespace
