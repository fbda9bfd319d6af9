// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The plug-in as the viewer drives it, at the fake host.

#include "IgnoredLeaks.h"
#include "PluginFixture.h"
#include "TestMain.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace Plugin::UsageTracking;
using Probe = UsageTrackingPluginProbe;

namespace {

const QStringList startFunctions{"ruiCreateInstance", "ruiCreateConfig", "ruiSetProductData",
                                 "ruiStartSDK", "ruiTrackEventText"};
const QStringList optOutFunctions{"ruiTrackEventText", "ruiStopSDK",      "ruiDestroyInstance",
                                  "ruiCreateInstance", "ruiCreateConfig", "ruiSetProductData",
                                  "ruiOptOut",         "ruiStartSDK",     "ruiStopSDK",
                                  "ruiDestroyInstance"};
const QStringList endFunctions{"ruiTrackEventText", "ruiStopSDK", "ruiDestroyInstance"};

QStringList functions(const QStringList &calls)
{
    QStringList names;
    for (const QString &call : calls) {
        names.append(call.section(QLatin1Char('('), 0, 0));
    }
    return names;
}

} // namespace

class PluginLifecycleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        RecordingAnalytics::instance().reset();
        storeKeys(QVariant(), QVariant());
    }

    void constructionMakesAProviderAndNoThread()
    {
        PluginFixture f;
        QVERIFY(Probe::provider(*f.plugin));
        QVERIFY(!Probe::provider(*f.plugin)->parent());
        QVERIFY(!Probe::trackingThread(*f.plugin).isRunning());
        QCOMPARE(f.trackingActive(), false);
    }

    void preInitializeIsAlwaysTrueAndCreatesTheTabAsAChild()
    {
        PluginFixture f;
        QCOMPARE(f.plugin->preInitialize(&f.host), true);
        QVERIFY(Probe::tab(*f.plugin));
        QCOMPARE(Probe::tab(*f.plugin)->parent(), f.plugin.get());
        QVERIFY(!Probe::trackingThread(*f.plugin).isRunning());
    }

    void initializeMovesTheProviderToTheRunningThread()
    {
        PluginFixture f;
        QCOMPARE(f.initialize(), true);
        QThread &thread = Probe::trackingThread(*f.plugin);
        QVERIFY(thread.isRunning());
        QCOMPARE(thread.priority(), QThread::InheritPriority);
        QCOMPARE(thread.objectName(), QStringLiteral("UsageTracking"));
        QCOMPARE(Probe::provider(*f.plugin)->thread(), &thread);
    }

    void missingServiceMakesInitializeFalseButEverythingIsSetUp_data()
    {
        QTest::addColumn<int>("missing");
        QTest::newRow("camera status") << 0;
        QTest::newRow("enumeration") << 1;
        QTest::newRow("device selector") << 2;
        QTest::newRow("parameters") << 3;
    }

    void missingServiceMakesInitializeFalseButEverythingIsSetUp()
    {
        QFETCH(int, missing);
        PluginFixture f;
        const QList<QSharedPointer<QObject>> required{f.host.cameraStatus, f.host.enumeration,
                                                      f.host.deviceSelector,
                                                      f.host.parameterService};
        f.host.removeService(required.at(missing));
        storeKeys(true, true);
        QCOMPARE(f.initialize(), false);
        QVERIFY(Probe::trackingThread(*f.plugin).isRunning());
        QCOMPARE(f.controller()->appliedOptInEnabled(), true);
        QCOMPARE(f.host.welcome->tabs.size(), 1);
        QVERIFY(f.host.menu->registeredAction);
    }

    void storedKeysAreLoadedAppliedConsentFirst()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.plugin->preInitialize(&f.host);
        QStringList order;
        using C = Internal::CDataPrivacyTabController;
        connect(f.controller(), &C::dataPrivacyOptInEnabledChanged, this,
                [&] { order.append("enabled"); });
        connect(f.controller(), &C::dataPrivacyOptInSelectedChanged, this,
                [&] { order.append("selected"); });
        connect(f.controller(), &C::dataPrivacyApplyEnabledChanged, this,
                [&] { order.append("apply"); });
        connect(Probe::tab(*f.plugin), &Internal::CDataPrivacyTab::applyIsNeededChanged, this,
                [&] { order.append("applyIsNeeded"); });
        f.running = true;
        f.plugin->initialize();
        // The tab hears of the flag first: it listens since it was made.
        QCOMPARE(order, QStringList({"enabled", "applyIsNeeded", "selected"}));
    }

    void storedStateDecidesAtInitializationDone_data()
    {
        QTest::addColumn<QVariant>("enabled");
        QTest::addColumn<QVariant>("selected");
        QTest::addColumn<bool>("active");
        QTest::addColumn<bool>("applyIsNeeded");
        QTest::newRow("no keys: undecided") << QVariant() << QVariant() << false << true;
        QTest::newRow("undecided") << QVariant(false) << QVariant(false) << false << true;
        QTest::newRow("a stored yes that was never selected is not acted on")
            << QVariant(true) << QVariant(false) << false << true;
        QTest::newRow("opted in") << QVariant(true) << QVariant(true) << true << false;
        QTest::newRow("opted out") << QVariant(false) << QVariant(true) << false << false;
        QTest::newRow("texts that mean true")
            << QVariant("true") << QVariant("true") << true << false;
        QTest::newRow("a value that is no bool reads as false")
            << QVariant(QStringList{"a", "b"}) << QVariant(true) << false << false;
    }

    void storedStateDecidesAtInitializationDone()
    {
        QFETCH(QVariant, enabled);
        QFETCH(QVariant, selected);
        QFETCH(bool, active);
        storeKeys(enabled, selected);
        PluginFixture f;
        f.start();
        QCOMPARE(f.trackingActive(), active);
        QCOMPARE(functions(f.analytics.calls()), active ? startFunctions : QStringList());
        QTEST(Probe::tab(*f.plugin)->isApplyNeeded(), "applyIsNeeded");
        QCOMPARE(f.controller()->dataPrivacyApplyEnabled(), false);
        QCOMPARE(f.controller()->dataPrivacyOptInEnabled(), f.controller()->appliedOptInEnabled());
    }

    void requestRunsInTheTrackingThreadNotBeforeAHundredMilliseconds()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.initialize();
        QElapsedTimer sinceDone;
        sinceDone.start();
        Q_EMIT f.host.initializationDone();
        QCOMPARE(f.analytics.calls(), QStringList());
        QCOMPARE(f.trackingActive(), true);
        QVERIFY(f.analytics.waitForCalls(1));
        QVERIFY(sinceDone.elapsed() >= 99);
        QCOMPARE(f.analytics.recorded().at(0).thread, &Probe::trackingThread(*f.plugin));
    }

    void missingTabAsksForAnOptOut()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.plugin->preInitialize(&f.host);
        delete Probe::tab(*f.plugin);
        f.running = true;
        QCOMPARE(f.plugin->initialize(), true);
        f.done();
        QCOMPARE(f.trackingActive(), false);
        QCOMPARE(f.analytics.calls(), QStringList());
        storeKeys(QVariant("kept"), QVariant("kept"));
        f.shutDown();
        QCOMPARE(storedKey("OptInEnabled"), QVariant("kept"));
        QCOMPARE(storedKey("OptInSelected"), QVariant("kept"));
    }

    void firstYesStartsOnceAndIsStoredAtShutDown()
    {
        PluginFixture f;
        f.start();
        f.click(true);
        f.apply();
        QCOMPARE(functions(f.analytics.takeCalls()), startFunctions);
        QCOMPARE(f.trackingActive(), true);
        QCOMPARE(Probe::tab(*f.plugin)->isApplyNeeded(), false);
        QVERIFY(!storedKey("OptInEnabled").isValid());
        f.shutDown();
        QCOMPARE(functions(f.analytics.calls()), endFunctions);
        QCOMPARE(storedKey("OptInEnabled").toString(), QStringLiteral("true"));
        QCOMPARE(storedKey("OptInSelected").toString(), QStringLiteral("true"));
    }

    void firstNoSchedulesNothing()
    {
        PluginFixture f;
        f.start();
        f.click(false);
        f.apply();
        QCOMPARE(f.analytics.calls(), QStringList());
        QCOMPARE(f.trackingActive(), false);
    }

    void applyBeforeAnyAnswerWasSelectedSchedulesNothing()
    {
        PluginFixture f;
        f.start();
        f.controller()->setDataPrivacyOptInEnabled(true, false);
        Q_EMIT f.controller()->dataPrivacyApplyClicked();
        f.waitForRequests();
        QCOMPARE(f.trackingActive(), false);
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void withdrawalRunsTheOptOutSequenceOnce()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        f.analytics.takeCalls();
        f.click(false);
        f.apply();
        QCOMPARE(functions(f.analytics.takeCalls()), optOutFunctions);
        f.openSession();
        f.apply();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void secondApplyOfTheSameAnswerSchedulesNothing()
    {
        PluginFixture f;
        f.start();
        f.click(true);
        f.controller()->onDataPrivacyApplyClicked();
        f.controller()->onDataPrivacyApplyClicked();
        f.waitForRequests();
        QCOMPARE(functions(f.analytics.calls()), startFunctions);
    }

    void goingBackToTheAppliedAnswerSchedulesNothing()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        f.analytics.takeCalls();
        f.click(false);
        f.click(true);
        f.apply();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void failedStartIsNotRetriedByTheSameAnswer()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.analytics.setResult("ruiStartSDK", 5);
        f.start();
        f.analytics.setResult("ruiStartSDK", 0);
        f.analytics.takeCalls();
        QCOMPARE(f.trackingActive(), true);
        f.apply();
        QCOMPARE(f.analytics.calls(), QStringList());
        f.click(false);
        f.apply();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void keysAreWrittenAtEveryShutDownAsBools_data()
    {
        QTest::addColumn<QVariant>("enabled");
        QTest::addColumn<QVariant>("selected");
        QTest::addColumn<QString>("enabledText");
        QTest::addColumn<QString>("selectedText");
        QTest::newRow("nothing stored") << QVariant() << QVariant() << "false"
                                        << "false";
        QTest::newRow("unchanged yes") << QVariant(true) << QVariant(true) << "true"
                                       << "true";
        QTest::newRow("numbers become bools") << QVariant(1) << QVariant(0) << "true"
                                              << "false";
    }

    void keysAreWrittenAtEveryShutDownAsBools()
    {
        QFETCH(QVariant, enabled);
        QFETCH(QVariant, selected);
        storeKeys(enabled, selected);
        PluginFixture f;
        f.start();
        f.shutDown();
        // The Ini format writes a bool as this word, a number as digits.
        QTEST(storedKey("OptInEnabled").toString(), "enabledText");
        QTEST(storedKey("OptInSelected").toString(), "selectedText");
    }

    void pendingAnswerIsNotStored()
    {
        PluginFixture f;
        f.start();
        f.click(true);
        f.shutDown();
        QCOMPARE(storedKey("OptInEnabled").toString(), QStringLiteral("false"));
        QCOMPARE(storedKey("OptInSelected").toString(), QStringLiteral("false"));
    }

    void shutDownSendsTheEndInTheTrackingThreadAndFreesTheProvider()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        f.analytics.takeCalls();
        const QPointer<QObject> provider = Probe::provider(*f.plugin);
        QCOMPARE(f.plugin->uninitialize(&f.host), true);
        f.running = false;
        QVERIFY(Probe::trackingThread(*f.plugin).isFinished());
        QVERIFY(provider.isNull());
        QCOMPARE(functions(f.analytics.calls()), endFunctions);
        for (const RecordedCall &call : f.analytics.recorded()) {
            QCOMPARE(call.thread, &Probe::trackingThread(*f.plugin));
        }
    }

    void shutDownBeforeTheRequestRanMakesNoCall()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.initialize();
        {
            // Qt never frees a single-shot timer whose thread ends before it fires.
            const IgnoredLeaks timer;
            Q_EMIT f.host.initializationDone();
        }
        f.shutDown();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void requestsAfterTheEndAreIgnored()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        f.shutDown();
        f.analytics.takeCalls();
        Q_EMIT f.host.initializationDone();
        f.click(false);
        f.controller()->onDataPrivacyApplyClicked();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void withdrawalInTheInstantOfTheShutDownEndsTheSessionOnly()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        f.analytics.takeCalls();
        f.click(false);
        {
            // Qt never frees a single-shot timer whose thread ends before it fires.
            const IgnoredLeaks timer;
            f.controller()->onDataPrivacyApplyClicked();
        }
        f.shutDown();
        QCOMPARE(functions(f.analytics.calls()), endFunctions);
        QCOMPARE(storedKey("OptInEnabled").toString(), QStringLiteral("false"));
    }

    void uninitializeWithoutInitializeIsTrue()
    {
        PluginFixture f;
        f.plugin->preInitialize(&f.host);
        QCOMPARE(f.plugin->uninitialize(&f.host), true);
    }

    void pluginDefaultsAgreeToCloseAndIgnoreTheAnnouncement()
    {
        PluginFixture f;
        f.initialize();
        QCOMPARE(f.plugin->checkPluginClosability(), true);
        f.plugin->aboutToUninitialize();
        QVERIFY(Probe::trackingThread(*f.plugin).isRunning());
    }
};

NERIX_TEST_MAIN(PluginLifecycleTest)
#include "PluginLifecycleTest.moc"
