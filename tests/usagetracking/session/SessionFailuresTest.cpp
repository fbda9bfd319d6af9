// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What a session that cannot be opened or recorded leaves behind, and what it says.

#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

namespace {

QStringList functions(const QStringList &calls)
{
    QStringList names;
    for (const QString &call : calls) {
        names.append(call.section(QLatin1Char('('), 0, 0));
    }
    return names;
}

} // namespace

class SessionFailuresTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failedStartLogsNothing_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::newRow("no instance") << "ruiCreateInstance";
        QTest::newRow("configuration") << "ruiCreateConfig";
        QTest::newRow("product data") << "ruiSetProductData";
        QTest::newRow("start") << "ruiStartSDK";
        QTest::newRow("session started") << "ruiTrackEventText";
    }

    void failedStartLogsNothing()
    {
        QFETCH(QString, failing);
        TrackingFixture f;
        f.analytics.setCreatesInstances(failing != QLatin1String("ruiCreateInstance"));
        f.analytics.setResult(failing, 5);
        const MessageLog log;
        f.start();
        f.stop();
        QCOMPARE(log.texts(), QStringList());
    }

    void onlyTheTwoCodesOfAnOptOutAreLogged_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<int>("logged");
        QTest::newRow("session ended") << "ruiTrackEventText" << 0;
        QTest::newRow("configuration") << "ruiCreateConfig" << 0;
        QTest::newRow("product data") << "ruiSetProductData" << 0;
        QTest::newRow("opt-out") << "ruiOptOut" << 1;
        QTest::newRow("start") << "ruiStartSDK" << 1;
        QTest::newRow("stop") << "ruiStopSDK" << 0;
        QTest::newRow("destroy") << "ruiDestroyInstance" << 0;
    }

    void onlyTheTwoCodesOfAnOptOutAreLogged()
    {
        QFETCH(QString, failing);
        TrackingFixture f;
        f.start();
        f.analytics.setResult(failing, 5);
        const MessageLog log;
        f.optOut();
        QTEST(int(log.texts().size()), "logged");
    }

    void bothWarningsOfAnOptOutComeInOrderAndTellNoPlaceInTheCode()
    {
        TrackingFixture f;
        f.start();
        f.analytics.setResult(QStringLiteral("ruiOptOut"), 7);
        f.analytics.setResult(QStringLiteral("ruiStartSDK"), 9);
        const MessageLog log;
        f.optOut();
        QCOMPARE(log.texts(), QStringList({"ruiOptOut failed with code 7",
                                           "ruiOptOut succeeding ruiStartSDK failed with code 9"}));
        for (const MessageLog::Message &message : log.messages()) {
            QCOMPARE(message.type, QtWarningMsg);
            QCOMPARE(message.origin, QStringLiteral(":0 "));
        }
    }

    void fileInTheWayOfTheConfigurationDirectoryChangesNoCall()
    {
        QDir(expectedDirectory()).removeRecursively();
        QDir().mkpath(QFileInfo(expectedDirectory()).path());
        QFile inTheWay(expectedDirectory());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        TrackingFixture f;
        const MessageLog log;
        f.start();
        QVERIFY(inTheWay.remove());
        QCOMPARE(functions(f.analytics.calls()),
                 QStringList({"ruiCreateInstance", "ruiCreateConfig", "ruiSetProductData",
                              "ruiStartSDK", "ruiTrackEventText"}));
        QVERIFY(f.analytics.calls().at(1).contains(expectedDirectory()));
        QCOMPARE(log.texts(), QStringList());
    }

    void optOutThatCouldNotBeRecordedLeavesNoSession_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::newRow("product data fails: destroyed") << "ruiSetProductData";
        QTest::newRow("no second instance") << "ruiCreateInstance";
    }

    void optOutThatCouldNotBeRecordedLeavesNoSession()
    {
        QFETCH(QString, failing);
        TrackingFixture f;
        f.start();
        f.analytics.setCreatesInstances(failing != QLatin1String("ruiCreateInstance"));
        f.analytics.setResult(failing, 5);
        f.optOut();
        f.analytics.takeCalls();
        // With a session left, each of the two would send its end.
        f.stop();
        f.optOut();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void destructorLeavesTheAnalyticsLibraryAlone()
    {
        {
            TrackingFixture f;
            f.startQuietly();
        }
        QCOMPARE(RecordingAnalytics::instance().calls(), QStringList());
    }
};

NERIX_TEST_MAIN(SessionFailuresTest)
#include "SessionFailuresTest.moc"
