// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Requests against the standard. With RUI_OTLP_DUMP set to a directory, every payload and mutant
// is also written there, for the check with the standard's own code.
#include "Child.h"
#include "DeliveryFixture.h"

#include <cstdlib>

namespace {

using namespace rui;
using namespace rui::test;

bool isValid(const TemporaryDirectory &directory, const std::string &payload)
{
    writeFile(directory.path("payload.json"), payload);
    return runProgram({"python3", RUI_OTLP_VALIDATOR, directory.path("payload.json")}).status == 0;
}

void dump(const std::string &name, const std::string &payload)
{
    if (const char *directory = std::getenv("RUI_OTLP_DUMP")) {
        writeFile(std::string(directory) + "/" + name + ".json", payload);
    }
}

class OtlpSchema : public DeliveryFixture
{
protected:
    // Delivers what was tracked and checks each request.
    void expectValidRequests(const std::string &name)
    {
        deliver();
        const auto requests = m_server.requests();
        ASSERT_GE(requests.size(), 1U);
        for (std::size_t i = 0; i < requests.size(); ++i) {
            EXPECT_TRUE(isValid(m_directory, requests[i].body)) << requests[i].body;
            dump("payload-" + name + "-" + std::to_string(i), requests[i].body);
        }
    }
};

TEST_F(OtlpSchema, EventsWithAndWithoutTextsAreValid)
{
    track(R"({"CameraNr":0})");
    track("");
    track("not JSON \x01 \"\\ \xE2\x82\xAC \xF0\x9F\x98\x80");
    store().add({"Model", "a2A*", "session", {}});
    expectValidRequests("events");
}

TEST_F(OtlpSchema, SeveralResourcesAreValid)
{
    track("1");
    store().join({"", "", "", "", "", ""});
    track("2");
    expectValidRequests("resources");
}

TEST_F(OtlpSchema, LossRecordIsValid)
{
    m_limits.maxEvents = 1;
    track("1");
    track("2");
    expectValidRequests("losses");
}

TEST_F(OtlpSchema, OptOutIsValid)
{
    track("1");
    store().withdraw({"1", "n", "", "", "", ""});
    expectValidRequests("optout");
}

TEST_F(OtlpSchema, LargestEventIsValid)
{
    track(std::string(1048575, 'x'), "");
    expectValidRequests("largest");
}

constexpr const char *sample =
    R"({"resourceLogs":[{"resource":{"attributes":[{"key":"service.name","value":{"stringValue":"n"}}]},)"
    R"("scopeLogs":[{"scope":{"name":"ruiSDK","version":"7.1.0"},"logRecords":[)"
    R"({"timeUnixNano":"1795199937000000000","observedTimeUnixNano":"1795199937000000000",)"
    R"("severityNumber":9,"eventName":"rui.C.N","body":{"stringValue":"t"},"attributes":[)"
    R"({"key":"log.record.uid","value":{"stringValue":"01M7X3PKPZ0XS3T5BFDHPJZ4DJ"}}]}]}]}]})";

TEST(OtlpValidator, AcceptsTheTextThatTheMutantsAreMadeFrom)
{
    const TemporaryDirectory directory;
    EXPECT_TRUE(isValid(directory, sample));
    dump("payload-sample", sample);
}

struct Mutant
{
    const char *rule;
    const char *from;
    const char *to;
};

class OtlpMutant : public testing::TestWithParam<Mutant>
{};

TEST_P(OtlpMutant, IsRefused)
{
    const TemporaryDirectory directory;
    std::string text = sample;
    const std::string from = GetParam().from;
    ASSERT_NE(text.find(from), std::string::npos);
    text.replace(text.find(from), from.size(), GetParam().to);
    EXPECT_FALSE(isValid(directory, text)) << text;
    dump(std::string("mutant-") + GetParam().rule, text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, OtlpMutant,
    testing::Values(
        Mutant{"TimeAsANumber", R"("timeUnixNano":"1795199937000000000")",
               R"("timeUnixNano":1795199937000000000)"},
        Mutant{"TimeWithLetters", R"("timeUnixNano":"1795199937000000000")",
               R"("timeUnixNano":"2026-11-20T18:38:57Z")"},
        Mutant{"TimeInSnakeCase", "timeUnixNano", "time_unix_nano"},
        Mutant{"SeverityAsAText", R"("severityNumber":9)", R"("severityNumber":"INFO")"},
        Mutant{"SeverityAsAnArray", R"("severityNumber":9)", R"("severityNumber":[9])"},
        Mutant{"BodyWithoutItsType", R"({"stringValue":"t"})", R"("t")"},
        Mutant{"BodyOfAnUnknownType", R"({"stringValue":"t"})", R"({"textValue":"t"})"},
        Mutant{"BodyThatIsANumber", R"({"stringValue":"t"})", R"({"stringValue":5})"},
        Mutant{"AttributesAsAnObject", R"([{"key":"service.name","value":{"stringValue":"n"}}])",
               R"({"service.name":"n"})"},
        Mutant{"AttributeValueAsAText", R"({"stringValue":"n"})", R"("n")"},
        Mutant{"RecordsUnderAnOldName", "logRecords", "logs"},
        Mutant{"ScopeUnderAnOldName", "scopeLogs", "instrumentationLibraryLogs"},
        Mutant{"ResourceAsAText", R"("resource":{"attributes":)", R"("resource":{"attribute":)"},
        Mutant{"EventNameAsANumber", R"("eventName":"rui.C.N")", R"("eventName":7)"},
        Mutant{"RequestInAnArray", R"({"resourceLogs":[)", R"({"resourceLog":[)"}),
    [](const auto &row) { return std::string(row.param.rule); });

} // namespace
