// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

// The session that run.sh shows: each kind of event, from a camera that streams, loses packets and
// disappears.
class EveryEventTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void testEachKindOfEventIsStoredInOrder();
    void testModelIsMasked();
    void testStatusBarHasTheTrueNumberOfImages();
    void testStreamCountersAreReal();
    void testLostPacketsAreAFailure();

private:
    // The inner object \a key of the first "Stopped" record, which is no JSON as a whole.
    QJsonObject stoppedRecord(const QString &key) const;

    CSimulatorProcess m_camera;
    CViewerProcess m_viewer;
    QStringList m_events;
};

namespace {

QString sessionScript()
{
    QFile script(QStringLiteral(NERIX_SOURCE_DIR "/viewer/demo/session.js"));
    return script.open(QIODevice::ReadOnly) ? QString::fromUtf8(script.readAll()) : QString();
}

QString kindOf(const QString &event)
{
    return event.section('\t', 0, 1).replace('\t', ' ');
}

} // namespace

void EveryEventTest::initTestCase()
{
    QVERIFY2(m_camera.start(), qPrintable(m_camera.errorText()));
    m_viewer.storeConsent(true, true);
    connect(&m_viewer, &CViewerProcess::lineWasPrinted, this, [this](const QString &line) {
        if (line.startsWith("simulator: ")) {
            m_camera.command(line.section(": ", 1));
        }
    });
    m_viewer.start(sessionScript());
    QCOMPARE(m_viewer.finish(), 0);
    m_events = m_viewer.storedEvents();
}

void EveryEventTest::testEachKindOfEventIsStoredInOrder()
{
    QStringList kinds;
    for (const QString &event : m_events) {
        const QString kind = kindOf(event);
        // One for each kind of failure that happened.
        if (kind != "Grab Failed" || kinds.last() != kind) {
            kinds.append(kind);
        }
    }
    QCOMPARE(kinds,
             QStringList({"GeneralEvent SessionStarted", "Model Ostrand ***-2000",
                          "Camera Connected", "GeneralEvent InitialCameraCount", "Camera Opened",
                          "FeatureChosen ExposureTime", "ParameterValueChanged ExposureTime",
                          "ParameterValueChanged ExposureTime", "Grab Started", "Grab Stopped",
                          "Grab Started", "Grab Stopped", "Grab Failed", "Camera Closed",
                          "Camera Removed", "GeneralEvent SessionEnded"}));
}

void EveryEventTest::testModelIsMasked()
{
    QVERIFY(m_events.contains("Camera\tConnected\t{\"CameraNr\":0,\"EventCategory\":\"Camera\","
                              "\"EventName\":\"Connected\",\"Model\":\"Ostrand ***-2000\"}"));
    for (const QString &event : qAsConst(m_events)) {
        QVERIFY2(!event.section("\"Model\":", 1).contains("XQZ"), qPrintable(event));
    }
}

void EveryEventTest::testStatusBarHasTheTrueNumberOfImages()
{
    const QStringList counted =
        m_viewer.printed().filter(QRegularExpression("^has grabbed \\d+ images$"));
    QCOMPARE(counted.size(), 1);
    const QJsonObject status = stoppedRecord("StatusBarStats");
    QCOMPARE(status.keys(), QStringList({"BPS", "FPS", "ImagesFailedCount", "ImagesGrabbedCount"}));
    QCOMPARE(QStringLiteral("has grabbed %1 images").arg(status["ImagesGrabbedCount"].toInt()),
             counted.first());
    QCOMPARE(status["ImagesFailedCount"].toInt(), 0);
    QVERIFY(status["FPS"].toInt() > 0);
    QVERIFY(status["BPS"].toInt() > 0);
}

void EveryEventTest::testStreamCountersAreReal()
{
    const QJsonObject stream = stoppedRecord("StreamStats");
    QVERIFY(stream["TotalBufferCount"].toInt() >= 50);
    QVERIFY(stream["TotalPacketCount"].toInt() > stream["TotalBufferCount"].toInt());
    QCOMPARE(stream["FailedBufferCount"].toInt(-2), 0);
    // The transport counts no such thing, so the counter is absent and reads as -1.
    QCOMPARE(stream["ResynchronizationCount"].toInt(), -1);
}

void EveryEventTest::testLostPacketsAreAFailure()
{
    const QStringList failed = m_viewer.storedEvents("Grab").filter("\"EventName\":\"Failed\"");
    QVERIFY(!failed.isEmpty());
    for (const QString &event : failed) {
        const QJsonObject record =
            QJsonDocument::fromJson(event.section('\t', 2).toUtf8()).object();
        QVERIFY(record["ExceptionCount"].toInt() > 0);
        QVERIFY(QRegularExpression("^0x[0-9a-f]{8}$")
                    .match(record["ExceptionCode"].toString())
                    .hasMatch());
        QCOMPARE(record["ExceptionText"].toString(), QStringLiteral("***"));
    }
}

QJsonObject EveryEventTest::stoppedRecord(const QString &key) const
{
    const QString stopped = m_events.filter("\"EventName\":\"Stopped\"").value(0);
    const QString object = stopped.section(QStringLiteral("\"%1\":\"").arg(key), 1);
    return QJsonDocument::fromJson(object.left(object.indexOf('}') + 1).toUtf8()).object();
}

QTEST_GUILESS_MAIN(EveryEventTest)
#include "EveryEventTest.moc"
