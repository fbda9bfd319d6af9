// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CBusyMeter.h"
#include "CCrowd.h"
#include "CViewerProcess.h"

#include <QTest>

// The whole viewer with its windows, as a user has it, and with what is on the network.
class ViewerAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thousandCamerasFreezeNothing();
};

void ViewerAttackTest::thousandCamerasFreezeNothing()
{
    const CCrowd crowd(1000, [](int index) { return QByteArray::number(index); });
    QVERIFY(crowd.isListening());
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    viewer.setOptions({"--show-windows"});
    viewer.start("sleep(300);\nprint('ready');\n"
                 "for (var n = 0; n < 1000; n = cameras.list().length) { sleep(1000); }\n"
                 "sleep(2000);\nprint(n);\n");
    QVERIFY(viewer.waitForLine("ready"));
    const CBusyMeter meter(viewer);
    QVERIFY(viewer.waitForLine("1000"));
    qInfo("windows busy without a pause: %.0f ms at most", meter.longestMs());
    QVERIFY2(meter.longestMs() < 100.0, qPrintable(QString::number(meter.longestMs()) + " ms"));
    QCOMPARE(viewer.finish(), 0);
    QCOMPARE(viewer.storedEvents("Camera").filter("\"EventName\":\"Connected\"").size(), 1000);
}

QTEST_GUILESS_MAIN(ViewerAttackTest)

#include "ViewerAttackTest.moc"
