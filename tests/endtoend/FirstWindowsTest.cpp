// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Where the windows stand at the first start, with a window manager, as an outsider sees it.

#include "CDesktop.h"
#include "CViewerProcess.h"

#include <QTest>

class FirstWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWelcomeScreenStandsInTheMiddleOfTheMainWindow();
};

namespace {

// What the frames of the windows may add, and where they differ.
constexpr int frames = 40;

} // namespace

void FirstWindowsTest::testWelcomeScreenStandsInTheMiddleOfTheMainWindow()
{
    CDesktop desktop;
    QVERIFY(desktop.start());
    CViewerProcess viewer;
    QVERIFY(desktop.showFirstWindows(viewer));
    QRect main;
    QRect welcome;
    QVERIFY(QTest::qWaitFor(
        [&] {
            main = CDesktop::placeOf("Nerix Viewer");
            welcome = CDesktop::placeOf("Welcome to the Nerix Viewer");
            return !main.isNull() && !welcome.isNull();
        },
        60000));
    const QPoint off = welcome.center() - main.center();
    QVERIFY2(off.manhattanLength() < frames,
             qPrintable(QString("%1 %2").arg(off.x()).arg(off.y())));
    const QRect screen(0, 0, 2560, 1600); // of tools/with-display.sh
    QVERIFY(screen.contains(welcome) && screen.contains(main));
    QCOMPARE(main.height(), 800);
    viewer.terminate();
    viewer.finish();
}

QTEST_MAIN(FirstWindowsTest)

#include "FirstWindowsTest.moc"
