// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Where the windows stand at the first start, with a window manager, as an outsider sees it.

#include "CViewerProcess.h"

#include <QProcess>
#include <QRect>
#include <QTest>

class FirstWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void testWelcomeScreenStandsInTheMiddleOfTheMainWindow();

private:
    QProcess m_windowManager;
};

namespace {

// What the frames of the windows may add, and where they differ.
constexpr int frames = 40;

QByteArray asked(const QStringList &arguments)
{
    QProcess program;
    program.start("xdotool", arguments);
    program.waitForFinished();
    return program.readAllStandardOutput();
}

// Without the frame. Null if no such window is seen.
QRect placeOf(const QString &title)
{
    const QByteArray lines = asked({"search", "--onlyvisible", "--name", '^' + title + '$',
                                    "getwindowgeometry", "--shell", "%1"});
    const auto value = [&lines](const char *name) {
        const int begin = lines.indexOf(name) + int(qstrlen(name));
        return lines.mid(begin, lines.indexOf('\n', begin) - begin).toInt();
    };
    return lines.contains("WIDTH=")
               ? QRect(value("X="), value("Y="), value("WIDTH="), value("HEIGHT="))
               : QRect();
}

} // namespace

void FirstWindowsTest::initTestCase()
{
    m_windowManager.start("openbox", {"--sm-disable"});
    QVERIFY(m_windowManager.waitForStarted());
    QVERIFY(QTest::qWaitFor([] { return asked({"get_num_desktops"}).trimmed().toInt() > 0; }));
}

void FirstWindowsTest::cleanupTestCase()
{
    m_windowManager.terminate();
    m_windowManager.waitForFinished();
}

void FirstWindowsTest::testWelcomeScreenStandsInTheMiddleOfTheMainWindow()
{
    CViewerProcess viewer;
    viewer.setOptions({"--show-windows"});
    viewer.start("while (!welcome.visible()) { sleep(10); }\n"
                 "print(\"shown\");\n"
                 "for (;;) { sleep(10); }\n");
    QVERIFY(viewer.waitForLine("shown"));
    QRect main;
    QRect welcome;
    QVERIFY(QTest::qWaitFor(
        [&] {
            main = placeOf("Nerix Viewer");
            welcome = placeOf("Welcome to the Nerix Viewer");
            return !main.isNull() && !welcome.isNull();
        },
        60000));
    const QPoint off = welcome.center() - main.center();
    QVERIFY2(off.manhattanLength() < frames,
             qPrintable(QString("%1 %2").arg(off.x()).arg(off.y())));
    const QRect screen(0, 0, 2560, 1600); // of tools/with-display.sh
    QVERIFY(screen.contains(welcome) && screen.contains(main));
    viewer.terminate();
    viewer.finish();
}

QTEST_MAIN(FirstWindowsTest)

#include "FirstWindowsTest.moc"
