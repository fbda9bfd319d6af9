// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Which request reaches the provider. A session is opened by hand beforehand, since without one an
// opt-out leaves no trace.

#include "PluginFixture.h"
#include "TestMain.h"

#include <QElapsedTimer>

using namespace Plugin::UsageTracking;
using Probe = UsageTrackingPluginProbe;

namespace {

const QStringList optOutFunctions{"ruiTrackEventText", "ruiStopSDK",      "ruiDestroyInstance",
                                  "ruiCreateInstance", "ruiCreateConfig", "ruiSetProductData",
                                  "ruiOptOut",         "ruiStartSDK",     "ruiStopSDK",
                                  "ruiDestroyInstance"};

QStringList functions(const QStringList &calls)
{
    QStringList names;
    for (const QString &call : calls) {
        names.append(call.section(QLatin1Char('('), 0, 0));
    }
    return names;
}

} // namespace

class RequestTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        RecordingAnalytics::instance().reset();
        storeKeys(QVariant(), QVariant());
    }

    void everyStateWithoutConsentAsksForTheOptOutAtInitializationDone_data()
    {
        QTest::addColumn<QVariant>("enabled");
        QTest::addColumn<QVariant>("selected");
        QTest::newRow("never asked") << QVariant() << QVariant();
        QTest::newRow("a stored yes that was never selected") << QVariant(true) << QVariant(false);
        QTest::newRow("opted out") << QVariant(false) << QVariant(true);
    }

    void everyStateWithoutConsentAsksForTheOptOutAtInitializationDone()
    {
        QFETCH(QVariant, enabled);
        QFETCH(QVariant, selected);
        storeKeys(enabled, selected);
        PluginFixture f;
        f.initialize();
        f.openSession();
        f.done();
        QCOMPARE(functions(f.analytics.calls()), optOutFunctions);
    }

    void missingTabAsksForTheOptOut()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.initialize();
        f.openSession();
        delete Probe::tab(*f.plugin);
        f.done();
        QCOMPARE(functions(f.analytics.calls()), optOutFunctions);
    }

    void firstNoAsksForNothing()
    {
        PluginFixture f;
        f.start();
        f.openSession();
        f.click(false);
        f.apply();
        QCOMPARE(f.analytics.calls(), QStringList());
    }

    void optOutAtInitializationDoneWaitsItsHundredMilliseconds()
    {
        PluginFixture f;
        f.initialize();
        f.openSession();
        QElapsedTimer sinceDone;
        sinceDone.start();
        Q_EMIT f.host.initializationDone();
        QCOMPARE(f.analytics.calls(), QStringList());
        QVERIFY(f.analytics.waitForCalls(10));
        QVERIFY(sinceDone.elapsed() >= 99);
    }

    void startByApplyWaitsItsHundredMilliseconds()
    {
        PluginFixture f;
        f.start();
        QElapsedTimer sinceApply;
        sinceApply.start();
        f.click(true);
        f.controller()->onDataPrivacyApplyClicked();
        QCOMPARE(f.analytics.calls(), QStringList());
        QVERIFY(f.analytics.waitForCalls(5));
        QVERIFY(sinceApply.elapsed() >= 99);
    }

    void withdrawalWaitsItsHundredMilliseconds()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        f.analytics.takeCalls();
        QElapsedTimer sinceApply;
        sinceApply.start();
        f.click(false);
        f.controller()->onDataPrivacyApplyClicked();
        QCOMPARE(f.analytics.calls(), QStringList());
        QVERIFY(f.analytics.waitForCalls(10));
        QVERIFY(sinceApply.elapsed() >= 99);
    }

    void initializeTakesItsStepsInOrder()
    {
        PluginFixture f;
        f.plugin->preInitialize(&f.host);
        QStringList order;
        const auto note = [&](const char *step) {
            order.append(QLatin1String(step)
                         + (Probe::provider(*f.plugin)->thread() == QThread::currentThread()
                                ? QLatin1String(" before the move")
                                : QLatin1String(" after the move")));
        };
        f.host.onServicesWalked = [&] { note("services"); };
        using C = Internal::CDataPrivacyTabController;
        connect(f.controller(), &C::dataPrivacyOptInEnabledChanged, this,
                [&] { note("settings"); });
        f.host.welcome->onTabAdded = [&] { note("tab"); };
        f.host.menu->onActionRegistered = [&] { note("action"); };
        f.running = true;
        f.plugin->initialize();
        QCOMPARE(order, QStringList({"services before the move", "services before the move",
                                     "services before the move", "services before the move",
                                     "services before the move", "settings after the move",
                                     "services after the move", "tab after the move",
                                     "services after the move", "action after the move"}));
    }

    void keysAreWrittenBeforeTheThreadEnds()
    {
        storeKeys(true, true);
        PluginFixture f;
        f.start();
        storeKeys(QVariant(), QVariant());
        QVariant atTheEnd;
        connect(
            &Probe::trackingThread(*f.plugin), &QThread::finished, this,
            [&] { atTheEnd = storedKey("OptInEnabled"); }, Qt::DirectConnection);
        f.shutDown();
        QCOMPARE(atTheEnd.toString(), QStringLiteral("true"));
    }

    void keysAreWrittenWhenTheThreadNeverRan()
    {
        PluginFixture f;
        f.plugin->preInitialize(&f.host);
        f.plugin->uninitialize(&f.host);
        QCOMPARE(storedKey("OptInEnabled").toString(), QStringLiteral("false"));
        QCOMPARE(storedKey("OptInSelected").toString(), QStringLiteral("false"));
    }

    void laterInitializerReplacesTheEarlierOne()
    {
        PluginFixture f;
        FakeHost earlier;
        f.plugin->preInitialize(&earlier);
        f.initialize();
        QCOMPARE(earlier.welcome->tabs.size(), 0);
        QCOMPARE(f.host.welcome->tabs.size(), 1);
    }
};

NERIX_TEST_MAIN(RequestTest)
#include "RequestTest.moc"
