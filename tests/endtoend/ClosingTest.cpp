// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <csignal>

#include <QTest>

// However the viewer is ended, the session is ended in order.
class ClosingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEndsInOrder_data();
    void testEndsInOrder();
    void testOpenCameraIsClosedBeforeTheSessionEnds();
    void testEndsWhileAnOpenCameraIsGone();
};

namespace {

QStringList namesOf(const QStringList &events)
{
    QStringList names;
    for (const QString &event : events) {
        names += event.section('\t', 1, 1);
    }
    return names;
}

} // namespace

void ClosingTest::testEndsInOrder_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<int>("signalNumber");
    QTest::addColumn<int>("status");
    QTest::newRow("the end of the script") << "" << 0 << 0;
    QTest::newRow("quit()") << "quit(); fail('not reached');" << 0 << 0;
    QTest::newRow("the Quit entry")
        << "menu.trigger('NerixViewer.Action.Quit'); sleep(600000);" << 0 << 0;
    QTest::newRow("a script that fails") << "fail('reason');" << 0 << 1;
    QTest::newRow("a signal while the script sleeps") << "sleep(600000);" << SIGTERM << 1;
    QTest::newRow("the end of the terminal") << "sleep(600000);" << SIGHUP << 1;
    QTest::newRow("a signal while the script calculates") << "while (true) {}" << SIGTERM << 1;
}

void ClosingTest::testEndsInOrder()
{
    QFETCH(QString, script);
    QFETCH(int, signalNumber);
    QFETCH(int, status);
    CViewerProcess viewer;
    viewer.start("print('begun');\n" + script);
    QVERIFY(viewer.waitForLine("begun"));
    if (signalNumber != 0) {
        viewer.send(signalNumber);
    }
    QCOMPARE(viewer.finish(), status);
    // Written at an orderly end only.
    QCOMPARE(viewer.settings(),
             QByteArray("[UsageTracking]\nOptInEnabled=false\nOptInSelected=false\n"));
}

void ClosingTest::testOpenCameraIsClosedBeforeTheSessionEnds()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    QCOMPARE(viewer.run("cameras.open(cameras.waitFor(1, 60000)[0]);"), 0);
    QCOMPARE(namesOf(viewer.storedEvents()),
             QStringList({"SessionStarted", "Ostrand ***-2000", "Connected", "InitialCameraCount",
                          "Opened", "Closed", "SessionEnded"}));
}

void ClosingTest::testEndsWhileAnOpenCameraIsGone()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    viewer.start("cameras.open(cameras.waitFor(1, 60000)[0]); print('open'); sleep(600000);");
    QVERIFY(viewer.waitForLine("open"));
    camera.kill();
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(namesOf(viewer.storedEvents()).last(), QString("SessionEnded"));
}

QTEST_GUILESS_MAIN(ClosingTest)

#include "ClosingTest.moc"
