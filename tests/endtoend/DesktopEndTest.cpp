// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <csignal>

#include <QTest>

// However the desktop ends under the viewer, what the user said and how the windows lay is kept,
// and the session of the record has its end.
class DesktopEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testDisplayThatIsGone_data();
    void testDisplayThatIsGone();
    void testReaderOfTheOutputThatIsGone();
    void testLogOut();
    void testLogOutIsCancelledByAPluginThatObjectsAndTheViewerStays();

private:
    static void show(CViewerProcess &viewer, const QString &display);
};

namespace {

// An X display of the test's own.
class COwnDisplay
{
public:
    bool start()
    {
        m_server.setProcessChannelMode(QProcess::SeparateChannels);
        m_server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1600x1200x24", "-noreset",
                                "-nolisten", "tcp"});
        if (!QTest::qWaitFor([this] { return m_server.canReadLine(); }, 60000)) {
            return false;
        }
        m_name = ':' + QString::fromLatin1(m_server.readLine().trimmed());
        return true;
    }

    QString name() const
    {
        return m_name;
    }

    // As a server that crashes, or is ended at a log-out.
    void end(int number)
    {
        ::kill(pid_t(m_server.processId()), number);
        m_server.waitForFinished();
    }

    ~COwnDisplay()
    {
        m_server.kill();
        m_server.waitForFinished();
    }

private:
    QProcess m_server;
    QString m_name;
};

// See SessionManager.cpp.
class CSessionManager
{
public:
    bool start()
    {
        m_program.start(NERIX_SESSION_MANAGER, QStringList());
        return m_program.waitForStarted() && m_program.waitForReadyRead();
    }

    QString address()
    {
        return QString::fromUtf8(m_program.readLine().trimmed());
    }

    void tell(const char *line)
    {
        m_program.write(QByteArray(line) + '\n');
        m_program.waitForBytesWritten();
    }

    QString answer()
    {
        const bool isThere = QTest::qWaitFor([this] { return m_program.canReadLine(); }, 60000);
        return isThere ? QString::fromUtf8(m_program.readLine().trimmed()) : QString();
    }

    ~CSessionManager()
    {
        m_program.kill();
        m_program.waitForFinished();
    }

private:
    QProcess m_program;
};

} // namespace

void DesktopEndTest::show(CViewerProcess &viewer, const QString &display)
{
    viewer.storeConsent(true, true);
    viewer.setEnvironment("DISPLAY", display);
    viewer.setEnvironment("QT_QPA_PLATFORM", "xcb");
    viewer.setEnvironment("LIBGL_ALWAYS_SOFTWARE", "1");
    viewer.setOptions({"--show-windows"});
}

void DesktopEndTest::testDisplayThatIsGone_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("script");
    QTest::newRow("a crash of the server") << SIGKILL << "sleep(600000);";
    QTest::newRow("an end of the server") << SIGTERM << "sleep(600000);";
    QTest::newRow("while the viewer is closed") << SIGKILL << "";
}

void DesktopEndTest::testDisplayThatIsGone()
{
    QFETCH(int, number);
    QFETCH(QString, script);
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    COwnDisplay display;
    QVERIFY(display.start());
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    show(viewer, display.name());
    viewer.start("cameras.open(cameras.waitFor(1, 60000)[0]); print('open');" + script);
    QVERIFY(viewer.waitForLine("open"));
    QVERIFY(viewer.waitForEvents(
        [](const QStringList &events) { return !events.filter("\tOpened\t").isEmpty(); }));
    display.end(number);
    QVERIFY(viewer.endsWithin(10000));
    viewer.finish();
    const QByteArray settings = viewer.settings();
    QVERIFY2(settings.contains("OptInEnabled=true\nOptInSelected=true\n"), settings);
    QVERIFY2(settings.contains("[MainWindow]\nGeometry="), settings);
    const QStringList events = viewer.storedEvents();
    QVERIFY2(!events.filter("\tClosed\t").isEmpty(), qPrintable(viewer.logged().join('\n')));
    QVERIFY(!events.filter("SessionEnded").isEmpty());
}

void DesktopEndTest::testReaderOfTheOutputThatIsGone()
{
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    viewer.start("print('begun'); for (var i = 0; i < 2000; ++i) { print('line'); sleep(1); }");
    QVERIFY(viewer.waitForLine("begun"));
    viewer.closeOutput();
    QCOMPARE(viewer.finish(), 0);
    QVERIFY(!viewer.storedEvents().filter("SessionEnded").isEmpty());
}

void DesktopEndTest::testLogOut()
{
    COwnDisplay display;
    QVERIFY(display.start());
    CSessionManager desktop;
    QVERIFY(desktop.start());
    CViewerProcess viewer;
    show(viewer, display.name());
    viewer.setEnvironment("SESSION_MANAGER", desktop.address());
    viewer.start("print('begun'); sleep(600000);");
    QVERIFY(viewer.waitForLine("begun"));
    QCOMPARE(desktop.answer(), QString("client"));
    desktop.tell("logout");
    QCOMPARE(desktop.answer(), QString("saved"));
    QVERIFY(viewer.settings().contains("[MainWindow]\nGeometry="));
    QVERIFY(!viewer.endsWithin(300)); // somebody else may cancel
    desktop.tell("die");
    QVERIFY(viewer.endsWithin(10000));
    QCOMPARE(viewer.finish(), 1); // the script was not at its end
    QVERIFY(viewer.settings().contains("OptInEnabled=true\nOptInSelected=true\n"));
    QVERIFY(!viewer.storedEvents().filter("SessionEnded").isEmpty());
}

void DesktopEndTest::testLogOutIsCancelledByAPluginThatObjectsAndTheViewerStays()
{
    COwnDisplay display;
    QVERIFY(display.start());
    CSessionManager desktop;
    QVERIFY(desktop.start());
    CViewerProcess viewer;
    show(viewer, display.name());
    viewer.setEnvironment("NERIX_FIXTURE_STUCK", "objection");
    viewer.setOptions({"--show-windows", "--plugin-path", NERIX_FIXTURE_PLUGINS "/stuck"});
    viewer.setEnvironment("SESSION_MANAGER", desktop.address());
    viewer.start("print('begun'); sleep(600000);");
    QVERIFY(viewer.waitForLine("begun"));
    QCOMPARE(desktop.answer(), QString("client"));
    desktop.tell("logout");
    QCOMPARE(desktop.answer(), QString("cancelled"));
    QVERIFY(viewer.waitForLog("Plug-in \"Stuck\" does not let the viewer close", 60000));
    QVERIFY(!viewer.endsWithin(1000));
}

QTEST_GUILESS_MAIN(DesktopEndTest)

#include "DesktopEndTest.moc"
