// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The windows at the first start on the screen of a small notebook, 1366x768, with a window
// manager, as an outsider sees it.

#include "CDesktop.h"
#include "CViewerProcess.h"

#include <QTest>

class SmallScreenTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testMainWindowFillsTheScreenAndTheWelcomeScreenFitsInto();
};

void SmallScreenTest::testMainWindowFillsTheScreenAndTheWelcomeScreenFitsInto()
{
    CDesktop desktop;
    QVERIFY(desktop.start());
    CViewerProcess viewer;
    QVERIFY(desktop.showFirstWindows(viewer));
    const QRect screen(0, 0, 1366, 768);
    QRect main;
    QRect welcome;
    const auto isSeen = [&] {
        main = CDesktop::placeOf("Nerix Viewer");
        welcome = CDesktop::placeOf("Welcome to the Nerix Viewer");
        return !main.isNull() && !welcome.isNull() && main.width() == screen.width();
    };
    QVERIFY2(QTest::qWaitFor(isSeen, 60000), qPrintable(QString::number(main.width())));
    QVERIFY2(main.height() > 720 && main.height() < 768, // what the title bar leaves
             qPrintable(QString::number(main.height())));
    QVERIFY(screen.contains(main));
    QVERIFY(screen.contains(welcome));
    viewer.terminate();
    viewer.finish();
}

QTEST_MAIN(SmallScreenTest)

#include "SmallScreenTest.moc"
