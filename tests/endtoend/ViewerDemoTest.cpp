// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

// What `./run.sh` does on a machine with a display: the windows, and the events live beside them.
class ViewerDemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEventsAreShownWhileTheViewerIsOpen();
};

namespace {

void storeConsent(const QString &folder)
{
    QVERIFY(QDir(folder).mkpath("config/Ostrand"));
    QFile settings(folder + "/config/Ostrand/nerix-viewer.ini");
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[UsageTracking]\nOptInEnabled=true\nOptInSelected=true\n"
                   "[NerixWelcome]\nShowAtStartup=false\n");
}

} // namespace

void ViewerDemoTest::testEventsAreShownWhileTheViewerIsOpen()
{
    QTemporaryDir folder;
    storeConsent(folder.path());
    QProcess demo;
    demo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    demo.start(NERIX_SOURCE_DIR "/viewer/demo/run-viewer.sh", {NERIX_BUILD_DIR, folder.path()});
    QByteArray printed;
    const auto waitFor = [&](const char *text) {
        return QTest::qWaitFor(
            [&] {
                printed += demo.readAllStandardOutput();
                return printed.contains(text);
            },
            60000);
    };
    QVERIFY(waitFor("viewer   is open: close its window to end\n"));
    QVERIFY(waitFor("{\"CameraNr\":0,\"EventCategory\":\"Camera\",\"EventName\":\"Connected\","
                    "\"Model\":\"Ostrand ***-2000\"}\n"));
    demo.terminate();
    QVERIFY(waitFor("\"EventName\":\"SessionEnded\""));
    QVERIFY(demo.waitForFinished(60000));
    QCOMPARE(demo.exitCode(), 0);
}

QTEST_GUILESS_MAIN(ViewerDemoTest)

#include "ViewerDemoTest.moc"
