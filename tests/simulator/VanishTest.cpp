// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CControlPort.h"
#include "CGigEClient.h"
#include "CGrab.h"
#include "CSimulatorProcess.h"

#include <QDir>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

namespace {

constexpr int Rounds = 25;
constexpr int ShortWait = 50; // ms; a camera that is there answers within one

} // namespace

// The camera unplugged and plugged in again, in the hands of a program and alone.
class VanishTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void testStreamingProgramLosesControl();
    void testVanishedCameraRefusesNobodyAndAnswersNobody();
    void testVanishedCameraKeepsItsAddress();
    void testReturnedCameraIsTheSame();
    void testReturnedCameraHasItsSettingsFromTheStart();
    void testReturnedCameraKeepsItsUserName();
    void testReturnedCameraKeepsItsLoss();
    void testManyRoundsLeaveNothingBehind();
    void testManyRoundsWhileStreaming();

private:
    int openFiles() const;

    QScopedPointer<CSimulatorProcess> m_camera;
};

void VanishTest::init()
{
    m_camera.reset(new CSimulatorProcess);
    QVERIFY2(m_camera->start(), qPrintable(m_camera->errorText()));
}

void VanishTest::cleanup()
{
    QVERIFY2(m_camera->stop(), qPrintable(m_camera->errorText()));
    QCOMPARE(m_camera->errorText(), QString());
}

int VanishTest::openFiles() const
{
    return QDir(QString("/proc/%1/fd").arg(m_camera->processId()))
        .entryList(QDir::Files | QDir::System)
        .size();
}

void VanishTest::testStreamingProgramLosesControl()
{
    CGigEClient client(m_camera->address());
    QVERIFY2(client.isOpen(), qPrintable(client.error()));
    QVERIFY(client.setValue("Width", "320"));
    QVERIFY(client.setValue("Height", "240"));
    QSignalSpy lost(&client, &CGigEClient::controlLost);
    CGrab grab(client);
    QVERIFY(client.execute("AcquisitionStart"));
    QCOMPARE(grab.next().status, ARV_BUFFER_STATUS_SUCCESS);
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    QTRY_COMPARE_WITH_TIMEOUT(lost.size(), 1, 20000);
    // What was complete before may still be there; then nothing comes any more.
    while (grab.next(100).status != ARV_BUFFER_STATUS_UNKNOWN) {
    }
    QVERIFY(client.value("Width").isNull());
}

void VanishTest::testVanishedCameraRefusesNobodyAndAnswersNobody()
{
    QUdpSocket program;
    program.connectToHost(QHostAddress(QHostAddress::LocalHost), 3956);
    QVERIFY(program.waitForConnected());
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    program.write(QByteArray::fromHex("4201000200000001"));
    // A port that nobody holds would answer with a refusal at once.
    QVERIFY(!program.waitForReadyRead(200));
    QCOMPARE(program.error(), QAbstractSocket::SocketTimeoutError);
}

void VanishTest::testVanishedCameraKeepsItsAddress()
{
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    CSimulatorProcess other;
    QVERIFY(!other.start());
    QCOMPARE(other.exitStatus(), 1);
    QCOMPARE(m_camera->command("return"), QString("returned"));
}

void VanishTest::testReturnedCameraIsTheSame()
{
    CControlPort port(m_camera->address());
    const QByteArray before = port.discover();
    QCOMPARE(before.size(), 248);
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    QVERIFY(port.discover(ShortWait).isEmpty());
    QCOMPARE(m_camera->command("return"), QString("returned"));
    QCOMPARE(port.discover(), before);
}

void VanishTest::testReturnedCameraHasItsSettingsFromTheStart()
{
    {
        CGigEClient client(m_camera->address());
        QVERIFY(client.setValue("Width", "320"));
        QVERIFY(client.setValue("SequenceEnable", "true"));
        QVERIFY(client.execute("AcquisitionStart"));
    }
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    QCOMPARE(m_camera->command("return"), QString("returned"));
    CGigEClient client(m_camera->address());
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(client.device())));
    QCOMPARE(client.value("Width"), QString("512"));
    QCOMPARE(client.value("SequenceEnable"), QString("false"));
    QVERIFY(!client.isLocked("Width"));
}

void VanishTest::testReturnedCameraKeepsItsUserName()
{
    {
        CGigEClient client(m_camera->address());
        QVERIFY(client.setValue("DeviceUserID", "fifteen letters"));
    }
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    QCOMPARE(m_camera->command("return"), QString("returned"));
    CGigEClient client(m_camera->address());
    QCOMPARE(client.value("DeviceUserID"), QString("fifteen letters"));
}

void VanishTest::testReturnedCameraKeepsItsLoss()
{
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    QCOMPARE(m_camera->command("loss 1"), QString("loss 1"));
    QCOMPARE(m_camera->command("return"), QString("returned"));
    CGigEClient client(m_camera->address());
    CGrab grab(client);
    QVERIFY(client.execute("AcquisitionStart"));
    QCOMPARE(grab.next(300).status, ARV_BUFFER_STATUS_UNKNOWN);
    QVERIFY(client.value("QmzFrameCounter").toInt() > 0);
}

void VanishTest::testManyRoundsLeaveNothingBehind()
{
    CControlPort port(m_camera->address());
    QCOMPARE(m_camera->command("vanish"), QString("vanished"));
    QCOMPARE(m_camera->command("return"), QString("returned"));
    const int before = openFiles();
    QVERIFY(before > 0);
    for (int round = 0; round < Rounds; ++round) {
        QCOMPARE(m_camera->command("vanish"), QString("vanished"));
        QVERIFY(port.discover(ShortWait).isEmpty());
        QCOMPARE(m_camera->command("return"), QString("returned"));
        QCOMPARE(port.discover().size(), 248);
    }
    QCOMPARE(openFiles(), before);
}

void VanishTest::testManyRoundsWhileStreaming()
{
    for (int round = 0; round < Rounds; ++round) {
        CControlPort program(m_camera->address());
        QUdpSocket stream;
        QVERIFY(stream.bind(QHostAddress(QHostAddress::LocalHost)));
        QVERIFY(program.writeRegister(0x0A00, 2));                  // take control
        QVERIFY(program.writeRegister(0x0D00, stream.localPort())); // where to
        QVERIFY(program.writeRegister(0x0D18, 0x7F000001));
        QVERIFY(program.writeRegister(0x0124, 1)); // start
        QVERIFY(stream.waitForReadyRead(5000));
        QCOMPARE(m_camera->command("vanish"), QString("vanished"));
        QCOMPARE(m_camera->command("return"), QString("returned"));
        QCOMPARE(program.readRegister(0x0A00), qint64(0));
        QCOMPARE(program.readRegister(0x0124), qint64(0));
    }
}

QTEST_GUILESS_MAIN(VanishTest)

#include "VanishTest.moc"
