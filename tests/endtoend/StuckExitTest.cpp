// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CDesktop.h"
#include "CViewerProcess.h"

#include <csignal>

#include <QElapsedTimer>
#include <QTest>

// The viewer can be ended whatever is stuck in it.
class StuckExitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testThirdSignalEndsTheViewer_data();
    void testThirdSignalEndsTheViewer();
    void testSecondSignalEndsAScriptThatHeedsNothing();
    void testWhoIsStuckIsSaidAfterTenSecondsAndTheUserEndsTheViewer();
    void testExceptionThatLeavesADestructorIsSaidAndTheViewerEndsInOrder();

private:
    static void loadStuckPlugin(CViewerProcess &viewer, const char *operation,
                                const QStringList &options = {});
};

namespace {

constexpr int longestEnd = 10000; // ms

const QByteArray orderlySettings = "[UsageTracking]\nOptInEnabled=true\nOptInSelected=true\n";

} // namespace

void StuckExitTest::loadStuckPlugin(CViewerProcess &viewer, const char *operation,
                                    const QStringList &options)
{
    viewer.storeConsent(true, true);
    viewer.setEnvironment("NERIX_FIXTURE_STUCK", operation);
    viewer.setOptions(QStringList{"--plugin-path", NERIX_FIXTURE_PLUGINS "/stuck", "--plugin-path",
                                  NERIX_BUILD_DIR "/lib/nerix/plugins"}
                      + options);
}

void StuckExitTest::testThirdSignalEndsTheViewer_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<bool>("sessionEnds");
    QTest::newRow("a slot of the GUI thread") << QByteArray("slot") << false;
    QTest::newRow("while it is asked") << QByteArray("checkPluginClosability") << false;
    QTest::newRow("before the end of all") << QByteArray("aboutToUninitialize") << false;
    QTest::newRow("its end") << QByteArray("uninitialize") << true;
    QTest::newRow("its destructor") << QByteArray("destructor") << true;
}

void StuckExitTest::testThirdSignalEndsTheViewer()
{
    QFETCH(QByteArray, operation);
    QFETCH(bool, sessionEnds);
    CViewerProcess viewer;
    loadStuckPlugin(viewer, operation);
    viewer.start("print('begun'); sleep(600000);");
    if (operation != "slot") {
        QVERIFY(viewer.waitForLine("begun"));
    }
    QVERIFY(viewer.waitForEvents(
        [](const QStringList &events) { return !events.filter("SessionStarted").isEmpty(); }));
    for (int i = 0; i < 3; ++i) {
        viewer.send(SIGTERM);
        QVERIFY(!viewer.endsWithin(200));
    }
    QVERIFY(viewer.endsWithin(longestEnd));
    QCOMPARE(viewer.finish(), 1);
    const QStringList lines = viewer.logged().filter("ended without waiting");
    QCOMPARE(lines.size(), 1);
    QVERIFY2(lines.first().contains("\"Stuck\"") || operation == "slot", qPrintable(lines.first()));
    QCOMPARE(!viewer.storedEvents().filter("SessionEnded").isEmpty(), sessionEnds);
}

// A single operation of the engine, which takes minutes.
void StuckExitTest::testSecondSignalEndsAScriptThatHeedsNothing()
{
    CViewerProcess viewer;
    viewer.start("print('begun'); [].every.call({length: 4294967295}, isNaN);");
    QVERIFY(viewer.waitForLine("begun"));
    viewer.send(SIGTERM);
    QVERIFY(!viewer.endsWithin(2000));
    viewer.send(SIGTERM);
    QVERIFY(viewer.endsWithin(longestEnd));
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(viewer.logged().filter("test.js does not end").size(), 1);
}

// In a window of its own, since those of the viewer hang.
void StuckExitTest::testWhoIsStuckIsSaidAfterTenSecondsAndTheUserEndsTheViewer()
{
    CDesktop desktop;
    QVERIFY(desktop.start());
    CViewerProcess viewer;
    loadStuckPlugin(viewer, "uninitialize", {"--show-windows"});
    viewer.start("print('begun');");
    QVERIFY(viewer.waitForLine("begun"));
    QElapsedTimer clock;
    clock.start();
    QVERIFY(viewer.waitForLog("plug-in \"Stuck\" does not end (uninitialize)", 60000));
    QVERIFY(clock.elapsed() > 8000);
    QTRY_VERIFY_WITH_TIMEOUT(!CDesktop::placeOf("Nerix Viewer").isNull(), 30000);
    QVERIFY(!viewer.endsWithin(500));
    const QString picture = qEnvironmentVariable("NERIX_PICTURE");
    if (!picture.isEmpty()) {
        QProcess::execute("import", {"-window", "root", picture});
    }
    QCOMPARE(QProcess::execute("xdotool", {"search", "--onlyvisible", "--name", "^Nerix Viewer$",
                                           "windowactivate", "--sync", "key", "alt+e"}),
             0);
    QVERIFY(viewer.endsWithin(longestEnd));
    QCOMPARE(viewer.finish(), 1);
    QVERIFY(viewer.settings().contains("OptInEnabled=true\nOptInSelected=true\n"));
    QVERIFY(viewer.settings().contains("[MainWindow]\nGeometry="));
    QVERIFY(!viewer.storedEvents().filter("SessionEnded").isEmpty());
}

void StuckExitTest::testExceptionThatLeavesADestructorIsSaidAndTheViewerEndsInOrder()
{
    CViewerProcess viewer;
    loadStuckPlugin(viewer, "throwingDestructor");
    QCOMPARE(viewer.run(""), 0);
    QCOMPARE(viewer.logged().filter("thrown by a destructor").size(), 1);
    QVERIFY(viewer.logged().filter("thrown by a destructor").first().contains("\"Stuck\""));
    QCOMPARE(viewer.settings(), orderlySettings);
}

QTEST_GUILESS_MAIN(StuckExitTest)

#include "StuckExitTest.moc"
