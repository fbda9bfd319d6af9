// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CBusyMeter.h"
#include "CCrowd.h"
#include "CHostileCamera.h"
#include "CViewerProcess.h"
#include "GvspPackets.h"
#include "StreamCases.h"

#include <algorithm>

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>

// The whole viewer with its windows, as a user has it, and with what is on the network.
class ViewerAttackTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thousandCamerasFreezeNothing();
    void noStreamHarmsTheViewer();
};

namespace {

CHostileCamera::Identity secondCamera()
{
    CHostileCamera::Identity identity;
    identity.address = "127.0.0.2";
    identity.serial = "H2";
    identity.mac = "02000000a002";
    identity.userName = "secret line";
    return identity;
}

void send(const CHostileCamera &camera, const QList<QByteArray> &packets)
{
    for (const QByteArray &packet : packets) {
        camera.streamSocket().send(packet, camera.address(), camera.streamPort());
    }
}

// The most memory that the process had, in MB.
int peakMemory(const CViewerProcess &viewer)
{
    QFile file(QString("/proc/%1/status").arg(viewer.processId()));
    const QByteArray status = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return status.mid(status.indexOf("VmHWM:") + 6).simplified().split(' ').first().toInt() / 1024;
}

// The first event that cannot be read, or that tells what a camera is called; empty if none.
QString brokenEvent(const QStringList &events)
{
    for (const QString &event : events) {
        // What the status bar and the stream counted are objects in quotes.
        const QString details =
            event.section('\t', 2, 2).replace(QRegularExpression("\"(\\{[^{}]*\\})\""), "\\1");
        const bool isWhole =
            details.isEmpty() || QJsonDocument::fromJson(details.toUtf8()).isObject();
        if (!isWhole || event.contains("XQZ") || event.contains("secret")) {
            return event;
        }
    }
    return {};
}

const char grabWithBoth[] =
    "var one = cameras.waitFor('*-H1', 30000), other = cameras.waitFor('*-H2', 30000);\n"
    "cameras.open(one); cameras.open(other);\n"
    "grab.start(one); grab.start(other);\n"
    "print('grabbing');\n"
    "for (var shown = 0;;) {\n"
    "    sleep(20);\n"
    "    if (grab.figures(other).images > shown) {\n"
    "        shown = grab.figures(other).images;\n"
    "        print('image ' + shown);\n"
    "    }\n"
    "}\n";

} // namespace

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

// After each case the other camera's images still arrive.
void ViewerAttackTest::noStreamHarmsTheViewer()
{
    CHostileCamera hostile;
    CHostileCamera other(secondCamera());
    QVERIFY(hostile.isListening() && other.isListening());
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    viewer.setOptions({"--show-windows"});
    viewer.start(grabWithBoth);
    QVERIFY2(viewer.waitForLine("grabbing"), qPrintable(viewer.logged().join('\n')));
    const CBusyMeter meter(viewer);
    int round = 0;
    for (const StreamCase &one : streamCases()) {
        send(hostile, one.packets);
        ++round;
        send(other, GvspPackets::image(quint64(round), 64, 100, 'o'));
        QVERIFY2(viewer.waitForLine("image " + QString::number(round)),
                 qPrintable(QString(one.name) + ": " + viewer.logged().join('\n')));
    }
    QVERIFY2(meter.longestMs() < 1000.0, qPrintable(QString::number(meter.longestMs()) + " ms"));
    const int memory = peakMemory(viewer);
    QVERIFY2(memory > 0 && memory < 500, qPrintable(QString::number(memory) + " MB"));
    QElapsedTimer time;
    time.start();
    viewer.terminate();
    QVERIFY(viewer.finish() >= 0);
    QVERIFY2(time.elapsed() < 10000, qPrintable(QString::number(time.elapsed()) + " ms"));
    QCOMPARE(brokenEvent(viewer.storedEvents()), QString());
    QCOMPARE(viewer.storedEvents("Camera").filter("\"EventName\":\"Closed\"").size(), 2);
}

QTEST_GUILESS_MAIN(ViewerAttackTest)

#include "ViewerAttackTest.moc"
