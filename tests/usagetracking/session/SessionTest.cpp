// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Opening and closing a session with the analytics library, and the withdrawal.

#include "TestMain.h"
#include "TrackingFixture.h"

#include <internal/AnalyticsConfiguration.h>

namespace {

const QString create = QStringLiteral("ruiCreateInstance(0)");
const QString sessionStarted =
    QStringLiteral("ruiTrackEventText(#1 | GeneralEvent | SessionStarted | "
                   R"({"EventCategory":"GeneralEvent","EventName":"SessionStarted"} | ))");
const QString sessionEnded =
    QStringLiteral("ruiTrackEventText(#1 | GeneralEvent | SessionEnded | "
                   R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded",)"
                   R"("FinalCameraCount":0,"TotalUsedCameraCount":0} | ))");

QString config(int instance)
{
    return QStringLiteral("ruiCreateConfig(#%1 | %2 | 1234567890 | nerixViewer | "
                          "https://analytics.example | 3 |  | 0 | 0)")
        .arg(QString::number(instance), expectedDirectory());
}

QString productData(int instance)
{
    return QStringLiteral("ruiSetProductData(#%1 | Standard | US English | 7.1.0 | 11271)")
        .arg(instance);
}

QString call(const char *function, int instance)
{
    return QStringLiteral("%1(#%2)").arg(QLatin1String(function)).arg(instance);
}

QString stopCall(int instance)
{
    return QStringLiteral("ruiStopSDK(#%1 | 0)").arg(instance);
}

void addFailingCodes()
{
    QTest::addColumn<int>("code");
    QTest::newRow("positive") << 5;
    QTest::newRow("negative") << -5;
}

} // namespace

class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QDir(expectedDirectory()).removeRecursively();
    }

    // First: fixtures point both elsewhere.
    void productAndServerAreThoseOfTheBuildUntilTheyArePointedElsewhere()
    {
        QCOMPARE(Plugin::UsageTracking::Internal::productId, NERIX_ANALYTICS_PRODUCT_ID);
        QCOMPARE(Plugin::UsageTracking::Internal::serverHost, NERIX_ANALYTICS_SERVER_HOST);
    }

    void startMakesTheCallsInOrderWithAllArguments()
    {
        TrackingFixture f;
        f.start();
        QCOMPARE(f.analytics.calls(), QStringList({create, config(1), productData(1),
                                                   call("ruiStartSDK", 1), sessionStarted}));
    }

    void configurationDirectoryIsCreatedWithItsParents()
    {
        QVERIFY(!QFileInfo::exists(expectedDirectory()));
        TrackingFixture f;
        f.start();
        QVERIFY(QFileInfo(expectedDirectory()).isDir());
    }

    void configurationDirectoryIsPassedAsUtf8()
    {
        const QString usual = QCoreApplication::applicationName();
        QCoreApplication::setApplicationName(QStringLiteral("\u4f50\u85e4 J\u00fcrgen"));
        TrackingFixture f;
        f.start();
        QCoreApplication::setApplicationName(usual);
        const QString directory = f.analytics.calls().at(1).section(QStringLiteral(" | "), 1, 1);
        QCOMPARE(directory.toUtf8(),
                 qgetenv("XDG_DATA_HOME") + "/Ostrand/\xe4\xbd\x90\xe8\x97\xa4 J\xc3\xbcrgen");
    }

    void failingStepEndsTheStart_data()
    {
        QTest::addColumn<QString>("failing");
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("calls");
        for (const int code : {5, -5}) {
            QTest::addRow("configuration fails with %d: destroyed, no event", code)
                << "ruiCreateConfig" << code
                << QStringList{create, config(1), call("ruiDestroyInstance", 1)};
            QTest::addRow("product data fails with %d: destroyed, no event", code)
                << "ruiSetProductData" << code
                << QStringList{create, config(1), productData(1), call("ruiDestroyInstance", 1)};
            QTest::addRow("start fails with %d: destroyed, no event", code)
                << "ruiStartSDK" << code
                << QStringList{create, config(1), productData(1), call("ruiStartSDK", 1),
                               call("ruiDestroyInstance", 1)};
        }
    }

    void failingStepEndsTheStart()
    {
        QFETCH(QString, failing);
        QFETCH(int, code);
        TrackingFixture f;
        f.analytics.setResult(failing, code);
        f.start();
        QTEST(f.analytics.calls(), "calls");
        QCOMPARE(
            f.host.cameraStatus->receiverCount(&CameraPool::ICameraStatusService::deviceConnected),
            0);
        f.analytics.takeCalls();
        f.stop();
        f.optOut();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void withoutAnInstanceOneSessionStartedGoesToANullHandleAndNothingIsSubscribed()
    {
        TrackingFixture f;
        f.analytics.setCreatesInstances(false);
        f.start();
        QCOMPARE(
            f.analytics.takeCalls(),
            QStringList(
                {create, QStringLiteral("ruiTrackEventText(NULL | GeneralEvent | SessionStarted | "
                                        R"({"EventCategory":"GeneralEvent",)"
                                        R"("EventName":"SessionStarted"} | ))")}));
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.enumeration->enumerationChanged(); }),
                 QStringList());
    }

    void stopWithoutASessionMakesNoCall()
    {
        TrackingFixture f;
        f.stop();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void stopSendsTheEndThenStopsAndDestroys()
    {
        TrackingFixture f;
        f.startQuietly();
        f.stop();
        QCOMPARE(f.analytics.takeCalls(),
                 QStringList({sessionEnded, stopCall(1), call("ruiDestroyInstance", 1)}));
        f.stop();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void failingCodesOfStopAndDestroyAreIgnored()
    {
        TrackingFixture f;
        f.startQuietly();
        for (const char *function : {"ruiStopSDK", "ruiDestroyInstance", "ruiTrackEventText"}) {
            f.analytics.setResult(QLatin1String(function), 10);
        }
        f.stop();
        QCOMPARE(f.analytics.calls(),
                 QStringList({sessionEnded, stopCall(1), call("ruiDestroyInstance", 1)}));
    }

    void optOutWithoutASessionMakesNoCall()
    {
        TrackingFixture f;
        f.optOut();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void optOutEndsTheSessionThenRecordsBeforeItStarts()
    {
        TrackingFixture f;
        f.startQuietly();
        f.optOut();
        QCOMPARE(f.analytics.calls(),
                 QStringList({sessionEnded, stopCall(1), call("ruiDestroyInstance", 1), create,
                              config(2), productData(2), call("ruiOptOut", 2),
                              call("ruiStartSDK", 2), stopCall(2), call("ruiDestroyInstance", 2)}));
    }

    void failedOptOutIsLoggedAndTheLibraryStillStartedAndStopped()
    {
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiOptOut"), 7);
        QTest::ignoreMessage(QtWarningMsg, "ruiOptOut failed with code 7");
        f.optOut();
        QCOMPARE(f.analytics.calls().mid(6),
                 QStringList({call("ruiOptOut", 2), call("ruiStartSDK", 2), stopCall(2),
                              call("ruiDestroyInstance", 2)}));
    }

    void failedStartAfterTheOptOutIsLogged()
    {
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiStartSDK"), 7);
        QTest::ignoreMessage(QtWarningMsg, "ruiOptOut succeeding ruiStartSDK failed with code 7");
        f.optOut();
        QCOMPARE(f.analytics.calls().mid(6),
                 QStringList({call("ruiOptOut", 2), call("ruiStartSDK", 2), stopCall(2),
                              call("ruiDestroyInstance", 2)}));
    }

    void warningsCarryNegativeCodesInDecimal()
    {
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiOptOut"), -2147483647);
        f.analytics.setResult(QStringLiteral("ruiStartSDK"), -1);
        QTest::ignoreMessage(QtWarningMsg, "ruiOptOut failed with code -2147483647");
        QTest::ignoreMessage(QtWarningMsg, "ruiOptOut succeeding ruiStartSDK failed with code -1");
        f.optOut();
    }

    void failedConfigurationOfTheOptOutKeepsTheHandle_data()
    {
        addFailingCodes();
    }

    void failedConfigurationOfTheOptOutKeepsTheHandle()
    {
        QFETCH(int, code);
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiCreateConfig"), code);
        f.optOut();
        QCOMPARE(f.analytics.takeCalls(),
                 QStringList({sessionEnded, stopCall(1), call("ruiDestroyInstance", 1), create,
                              config(2)}));
        // Kept: it counts as an open session, so a stop sends its end through it.
        f.stop();
        QCOMPARE(f.analytics.takeCalls().value(0),
                 QStringLiteral("ruiTrackEventText(#2 | GeneralEvent | SessionEnded | "
                                R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded",)"
                                R"("FinalCameraCount":0,"TotalUsedCameraCount":0} | ))"));
    }

    void keptHandleIsReplacedByTheNextStart()
    {
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiCreateConfig"), 5);
        f.optOut();
        f.analytics.setResult(QStringLiteral("ruiCreateConfig"), 0);
        f.analytics.takeCalls();
        f.start();
        QCOMPARE(f.analytics.calls().mid(0, 4),
                 QStringList({create, config(3), productData(3), call("ruiStartSDK", 3)}));
    }

    void failedProductDataOfTheOptOutDestroysWithoutRecording_data()
    {
        addFailingCodes();
    }

    void failedProductDataOfTheOptOutDestroysWithoutRecording()
    {
        QFETCH(int, code);
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiSetProductData"), code);
        f.optOut();
        QCOMPARE(f.analytics.calls().mid(3),
                 QStringList({create, config(2), productData(2), call("ruiDestroyInstance", 2)}));
    }

    void optOutWithoutASecondInstanceEndsTheSessionOnly()
    {
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setCreatesInstances(false);
        f.optOut();
        QCOMPARE(f.analytics.calls(),
                 QStringList({sessionEnded, stopCall(1), call("ruiDestroyInstance", 1), create}));
    }

    void everyCallIsMadeInTheTrackingThread()
    {
        TrackingFixture f;
        f.start();
        f.connectCamera(f.host.makeCamera("A"));
        f.optOut();
        for (const RecordedCall &call : f.analytics.recorded()) {
            QCOMPARE(call.thread, &f.trackingThread);
        }
    }
};

NERIX_TEST_MAIN(SessionTest)
#include "SessionTest.moc"
