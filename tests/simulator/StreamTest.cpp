// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGigEClient.h"
#include "CGrab.h"
#include "CSimulatorProcess.h"

#include <memory>

#include <QFile>
#include <QScopedPointer>
#include <QTest>

namespace {

// Without a larger socket buffer, packets of a large image are lost on the way. The system's limit
// is 4 MiB or more where somebody cared, and too small for 512 x 512 otherwise.
bool isLargeBufferGranted()
{
    QFile file("/proc/sys/net/core/rmem_max");
    return file.open(QIODevice::ReadOnly) && file.readAll().trimmed().toLongLong() >= 4194304;
}

} // namespace

// Images: whole ones, lost ones, and how an acquisition begins and ends.
class StreamTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void testFramesAreWholeWithoutLoss();
    void testLossLeavesFramesWithMissingPackets();
    void testLossMayBeGivenAtTheStart();
    void testWithoutLossAgainFramesAreWhole();
    void testNothingArrivesWhenAllIsLost();
    void testAcquisitionEndsByItself_data();
    void testAcquisitionEndsByItself();
    void testAcquisitionStopEndsIt();
    void testFrameCounterCountsAndIsReset();
    void testSoftwareTriggerMakesOneImage();
    void testImageFormatIsLockedWhileAcquiring();
    void testPixelFormats_data();
    void testPixelFormats();
    void testSettingsChangeTheImage_data();
    void testSettingsChangeTheImage();
    void testTwoCamerasStreamAtOnce();

private:
    void chooseWholeFormat(CGigEClient &client);
    int wholeFrames(CGrab &grab, int limit);

    QScopedPointer<CSimulatorProcess> m_camera;
    QScopedPointer<CGigEClient> m_client;
};

void StreamTest::init()
{
    m_camera.reset(new CSimulatorProcess);
    QVERIFY2(m_camera->start(), qPrintable(m_camera->errorText()));
    m_client.reset(new CGigEClient(m_camera->address()));
    QVERIFY2(m_client->isOpen(), qPrintable(m_client->error()));
    chooseWholeFormat(*m_client);
}

void StreamTest::cleanup()
{
    m_client.reset();
    QVERIFY(m_camera->stop());
}

void StreamTest::chooseWholeFormat(CGigEClient &client)
{
    if (!isLargeBufferGranted()) {
        QVERIFY(client.setValue("Width", "320"));
        QVERIFY(client.setValue("Height", "240"));
    }
}

// How many images arrive whole until one is not, or none comes within a second.
int StreamTest::wholeFrames(CGrab &grab, int limit)
{
    int count = 0;
    while (count < limit && grab.next(1000).status == ARV_BUFFER_STATUS_SUCCESS) {
        ++count;
    }
    return count;
}

void StreamTest::testFramesAreWholeWithoutLoss()
{
    CGrab grab(*m_client);
    QVERIFY(grab.isOpen());
    QVERIFY(m_client->execute("AcquisitionStart"));
    const int size = m_client->value("PayloadSize").toInt();
    for (int i = 0; i < 50; ++i) {
        const Frame frame = grab.next();
        QCOMPARE(frame.status, ARV_BUFFER_STATUS_SUCCESS);
        QCOMPARE(frame.image.size(), size);
        // The ramp moves by one an image, so none was left out.
        QCOMPARE(int(frame.image.at(0)), i);
        QCOMPARE(int(frame.image.at(7)), i + 7);
    }
}

void StreamTest::testLossLeavesFramesWithMissingPackets()
{
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QCOMPARE(grab.next().status, ARV_BUFFER_STATUS_SUCCESS);
    QCOMPARE(m_camera->command("loss 0.01"), QString("loss 0.01"));
    int missing = 0;
    for (int i = 0; i < 200 && missing < 3; ++i) {
        missing += grab.next().status == ARV_BUFFER_STATUS_MISSING_PACKETS ? 1 : 0;
    }
    QCOMPARE(missing, 3);
}

void StreamTest::testLossMayBeGivenAtTheStart()
{
    m_client.reset();
    m_camera.reset(new CSimulatorProcess({"--loss", "0.05"}));
    QVERIFY(m_camera->start());
    m_client.reset(new CGigEClient(m_camera->address()));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QVERIFY(wholeFrames(grab, 100) < 100);
}

void StreamTest::testWithoutLossAgainFramesAreWhole()
{
    QCOMPARE(m_camera->command("loss 0.5"), QString("loss 0.5"));
    {
        CGrab grab(*m_client);
        QVERIFY(m_client->execute("AcquisitionStart"));
        QVERIFY(wholeFrames(grab, 20) < 20);
        QVERIFY(m_client->execute("AcquisitionStop"));
    }
    QCOMPARE(m_camera->command("loss 0"), QString("loss 0"));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QCOMPARE(wholeFrames(grab, 20), 20);
}

void StreamTest::testNothingArrivesWhenAllIsLost()
{
    QCOMPARE(m_camera->command("loss 1"), QString("loss 1"));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QCOMPARE(grab.next(500).status, ARV_BUFFER_STATUS_UNKNOWN);
    QVERIFY(m_client->value("QmzFrameCounter").toInt() > 0);
}

void StreamTest::testAcquisitionEndsByItself_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("count");
    QTest::addColumn<int>("images");

    QTest::newRow("after one image") << "SingleFrame"
                                     << "5" << 1;
    QTest::newRow("after a number of images") << "MultiFrame"
                                              << "5" << 5;
    QTest::newRow("after a number that is one") << "MultiFrame"
                                                << "1" << 1;
}

void StreamTest::testAcquisitionEndsByItself()
{
    QFETCH(QString, mode);
    QFETCH(QString, count);
    QFETCH(int, images);
    QVERIFY(m_client->setValue("AcquisitionMode", mode));
    QVERIFY(m_client->setValue("AcquisitionFrameCount", count));
    // Each acquisition counts from the start.
    for (int round = 0; round < 3; ++round) {
        CGrab grab(*m_client);
        QVERIFY(m_client->execute("AcquisitionStart"));
        QCOMPARE(wholeFrames(grab, 100), images);
        QVERIFY(!m_client->isLocked("Width"));
        QVERIFY(m_client->execute("AcquisitionStop"));
    }
}

void StreamTest::testAcquisitionStopEndsIt()
{
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QCOMPARE(wholeFrames(grab, 15), 15);
    QVERIFY(m_client->execute("AcquisitionStop"));
    // What was on its way may still arrive.
    QVERIFY(wholeFrames(grab, 100) < 10);
}

void StreamTest::testFrameCounterCountsAndIsReset()
{
    QVERIFY(m_client->setValue("AcquisitionMode", "MultiFrame"));
    QVERIFY(m_client->setValue("AcquisitionFrameCount", "3"));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QCOMPARE(wholeFrames(grab, 100), 3);
    QCOMPARE(m_client->value("QmzFrameCounter"), QString("3"));
    QVERIFY(m_client->execute("QmzFrameCounterReset"));
    QCOMPARE(m_client->value("QmzFrameCounter"), QString("0"));
}

void StreamTest::testSoftwareTriggerMakesOneImage()
{
    QVERIFY(m_client->setValue("TriggerMode", "On"));
    QVERIFY(m_client->setValue("TriggerSource", "Software"));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QCOMPARE(grab.next(500).status, ARV_BUFFER_STATUS_UNKNOWN);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(m_client->execute("TriggerSoftware"));
        QCOMPARE(grab.next().status, ARV_BUFFER_STATUS_SUCCESS);
        QCOMPARE(grab.next(200).status, ARV_BUFFER_STATUS_UNKNOWN);
    }
}

void StreamTest::testImageFormatIsLockedWhileAcquiring()
{
    CGrab grab(*m_client);
    const QStringList features{"Width",   "Height",      "OffsetX",
                               "OffsetY", "PixelFormat", "GevSCPSPacketSize"};
    QVERIFY(m_client->execute("AcquisitionStart"));
    for (const QString &feature : features) {
        QVERIFY2(m_client->isLocked(feature), qPrintable(feature));
    }
    QVERIFY(!m_client->isLocked("ExposureTime"));
    QVERIFY(m_client->execute("AcquisitionStop"));
    for (const QString &feature : features) {
        QVERIFY2(!m_client->isLocked(feature), qPrintable(feature));
    }
}

void StreamTest::testPixelFormats_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QByteArray>("start");

    QTest::newRow("Mono8") << 76800 << QByteArray("000102030405");
    QTest::newRow("Mono16") << 153600 << QByteArray("000001010202");
    QTest::newRow("RGB8") << 230400 << QByteArray("000000010101");
}

void StreamTest::testPixelFormats()
{
    QFETCH(int, size);
    QFETCH(QByteArray, start);
    QVERIFY(m_client->setValue("Width", "320"));
    QVERIFY(m_client->setValue("Height", "240"));
    QVERIFY(m_client->setValue("PixelFormat", QTest::currentDataTag()));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    const Frame frame = grab.next();
    QCOMPARE(frame.image.size(), size);
    QCOMPARE(frame.image.left(6).toHex(), start);
}

void StreamTest::testSettingsChangeTheImage_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("startOfTheNext");

    const auto row = [](const char *feature, const char *value, const char *start,
                        const char *next) {
        QTest::addRow("%s %s", feature, value)
            << QString(feature) << QString(value) << QByteArray(start) << QByteArray(next);
    };
    row("QmzTestImage", "MovingRamp", "00010203", "01020304");
    row("QmzTestImage", "StillRamp", "00010203", "00010203");
    row("QmzTestImage", "Grey", "80808080", "80808080");
    row("QmzBrightness", "100", "64656667", "65666768");
    row("QmzBrightness", "-2", "00000001", "00000102");
    row("QmzInvert", "true", "fffefdfc", "fefdfcfb");
    row("ExposureTime", "20000", "00020406", "02040608");
    row("Gain", "20", "000a141e", "0a141e28");
}

void StreamTest::testSettingsChangeTheImage()
{
    QFETCH(QString, feature);
    QFETCH(QString, value);
    QVERIFY(m_client->setValue(feature, value));
    CGrab grab(*m_client);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QTEST(grab.next().image.left(4).toHex(), "start");
    QTEST(grab.next().image.left(4).toHex(), "startOfTheNext");
}

void StreamTest::testTwoCamerasStreamAtOnce()
{
    if (qgetenv("NERIX_NETWORK") == "loopback") {
        QSKIP("a second address needs a network of its own");
    }
    CSimulatorProcess second({"--address", "127.0.0.2"});
    QVERIFY2(second.start(), qPrintable(second.errorText()));
    CGigEClient other(second.address());
    QVERIFY2(other.isOpen(), qPrintable(other.error()));
    chooseWholeFormat(other);
    CGrab ofFirst(*m_client);
    CGrab ofSecond(other);
    QVERIFY(m_client->execute("AcquisitionStart"));
    QVERIFY(other.execute("AcquisitionStart"));
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(ofFirst.next().status, ARV_BUFFER_STATUS_SUCCESS);
        QCOMPARE(ofSecond.next().status, ARV_BUFFER_STATUS_SUCCESS);
    }
}

QTEST_GUILESS_MAIN(StreamTest)

#include "StreamTest.moc"
