// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The form of an event record and its way to the analytics library.

#include "RecordingAnalytics.h"
#include "TestMain.h"

#include <internal/EventRecord.h>

using namespace Plugin::UsageTracking::Internal;

class EventRecordTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        RecordingAnalytics::instance().reset();
    }

    void recordText_data()
    {
        QTest::addColumn<QJsonObject>("record");
        QTest::addColumn<QString>("text");
        QTest::newRow("keys are sorted whatever the order of insertion")
            << QJsonObject{{"Model", "m"},
                           {"EventName", "n"},
                           {"CameraNr", 3},
                           {"EventCategory", "c"}}
            << R"({"CameraNr":3,"EventCategory":"c","EventName":"n","Model":"m"})";
        QTest::newRow("compact, counts as integers")
            << QJsonObject{{"EventCategory", "GeneralEvent"},
                           {"EventName", "SessionEnded"},
                           {"FinalCameraCount", 2},
                           {"TotalUsedCameraCount", 3}}
            << R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded",)"
               R"("FinalCameraCount":2,"TotalUsedCameraCount":3})";
        QTest::newRow("integers keep every digit up to 2^53")
            << QJsonObject{{"N", Q_INT64_C(9007199254740992)}} << R"({"N":9007199254740992})";
        QTest::newRow("beyond that Qt's serialiser rounds as for a double")
            << QJsonObject{{"N", Q_INT64_C(9223372036854775807)}} << R"({"N":9223372036854776000})";
        QTest::newRow("negative integers") << QJsonObject{{"N", -1}} << R"({"N":-1})";
        QTest::newRow("quotes, backslashes and line ends are escaped")
            << QJsonObject{{"T", "a\"b\\c\nd\te"}} << "{\"T\":\"a\\\"b\\\\c\\nd\\te\"}";
        QTest::newRow("text outside ASCII stays as it is")
            << QJsonObject{{"T", QStringLiteral("\u00e9\u65e5\U0001f4f7")}}
            << QStringLiteral("{\"T\":\"\u00e9\u65e5\U0001f4f7\"}");
    }

    void recordText()
    {
        QFETCH(QJsonObject, record);
        QTEST(toRecordText(record), "text");
    }

    void recordIsDispatchedUnderItsOwnCategoryAndNameWithAnEmptyFifthArgument()
    {
        trackEvent(reinterpret_cast<ruiInstance>(5), "Camera", "Opened", {{"CameraNr", 3}});
        QCOMPARE(
            RecordingAnalytics::instance().calls(),
            QStringList{"ruiTrackEventText(#5 | Camera | Opened | "
                        R"({"CameraNr":3,"EventCategory":"Camera","EventName":"Opened"} | ))"});
    }

    void textIsPassedAsUtf8()
    {
        trackText(reinterpret_cast<ruiInstance>(1), QStringLiteral("c\u00e9"),
                  QStringLiteral("n\u65e5"), QStringLiteral("t\U0001f4f7"));
        QCOMPARE(RecordingAnalytics::instance().calls(),
                 QStringList{
                     QStringLiteral("ruiTrackEventText(#1 | c\u00e9 | n\u65e5 | t\U0001f4f7 | )")});
    }

    void nullHandleIsPassedOnAsItIs()
    {
        trackText(nullptr, QStringLiteral("c"), QStringLiteral("n"), QStringLiteral("{}"));
        QCOMPARE(RecordingAnalytics::instance().calls(),
                 QStringList{QStringLiteral("ruiTrackEventText(NULL | c | n | {} | )")});
    }
};

NERIX_TEST_MAIN(EventRecordTest)
#include "EventRecordTest.moc"
