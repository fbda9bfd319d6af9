// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CControlPort.h"
#include "CGigEClient.h"
#include "CSimulatorProcess.h"

#include <QTest>
#include <QUdpSocket>

namespace {

constexpr quint32 ControlPrivilege = 0x0A00;
constexpr quint32 HeartbeatTimeout = 0x0938; // milliseconds
constexpr quint32 StreamPort = 0x0D00;
constexpr quint32 StreamAddress = 0x0D18;
constexpr quint32 Acquisition = 0x0124;
constexpr quint32 Control = 2;

} // namespace

// Who controls the camera, and what becomes of an acquisition whose program is gone.
class ControlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testSecondProgramMayReadButNotWrite();
    void testControlIsFreeAfterItsRelease();
    void testAcquisitionEndsWhenItsProgramIsSilent();
    void testAcquisitionEndsWhenItsProgramLetsGo();
    void testAcquisitionGoesOnWhileItsProgramSpeaks();

private:
    bool startAcquisition(CControlPort &program);

    QScopedPointer<CSimulatorProcess> m_camera;
    QScopedPointer<QUdpSocket> m_stream;
};

void ControlTest::init()
{
    m_camera.reset();
    m_camera.reset(new CSimulatorProcess);
    QVERIFY2(m_camera->start(), qPrintable(m_camera->errorText()));
    m_stream.reset(new QUdpSocket);
    QVERIFY(m_stream->bind(QHostAddress(QHostAddress::LocalHost)));
}

bool ControlTest::startAcquisition(CControlPort &program)
{
    return program.writeRegister(ControlPrivilege, Control)
           && program.writeRegister(HeartbeatTimeout, 500)
           && program.writeRegister(StreamPort, m_stream->localPort())
           && program.writeRegister(StreamAddress, 0x7F000001)
           && program.writeRegister(Acquisition, 1);
}

void ControlTest::testSecondProgramMayReadButNotWrite()
{
    CControlPort first(m_camera->address());
    QVERIFY(first.writeRegister(ControlPrivilege, Control));
    QVERIFY(first.writeRegister(ARV_FAKE_CAMERA_REGISTER_WIDTH, 320));
    CControlPort second(m_camera->address());
    QCOMPARE(second.readRegister(ARV_FAKE_CAMERA_REGISTER_WIDTH), qint64(320));
    QVERIFY(!second.writeRegister(ARV_FAKE_CAMERA_REGISTER_WIDTH, 640));
    QCOMPARE(second.readRegister(ARV_FAKE_CAMERA_REGISTER_WIDTH), qint64(320));
}

void ControlTest::testControlIsFreeAfterItsRelease()
{
    {
        const CGigEClient first(m_camera->address());
        QVERIFY2(first.isOpen(), qPrintable(first.error()));
        const CGigEClient second(m_camera->address());
        QVERIFY(!second.isOpen() || !arv_gv_device_is_controller(ARV_GV_DEVICE(second.device())));
    }
    const CGigEClient third(m_camera->address());
    QVERIFY(arv_gv_device_is_controller(ARV_GV_DEVICE(third.device())));
}

void ControlTest::testAcquisitionEndsWhenItsProgramIsSilent()
{
    CControlPort silent(m_camera->address());
    QVERIFY(startAcquisition(silent));
    CControlPort other(m_camera->address());
    QTRY_COMPARE(other.readRegister(Acquisition), qint64(0));
    QCOMPARE(other.readRegister(ControlPrivilege), qint64(0));
    // Whoever comes next finds a camera at rest.
    QVERIFY(other.writeRegister(ControlPrivilege, Control));
    while (m_stream->hasPendingDatagrams()) {
        m_stream->readDatagram(nullptr, 0);
    }
    QVERIFY(!m_stream->waitForReadyRead(200));
}

void ControlTest::testAcquisitionEndsWhenItsProgramLetsGo()
{
    CControlPort program(m_camera->address());
    QVERIFY(startAcquisition(program));
    QVERIFY(program.writeRegister(ControlPrivilege, 0));
    QTRY_COMPARE(program.readRegister(Acquisition), qint64(0));
}

void ControlTest::testAcquisitionGoesOnWhileItsProgramSpeaks()
{
    CControlPort program(m_camera->address());
    QVERIFY(startAcquisition(program));
    // 50 images at 25 a second take four times the heartbeat's limit. Programs keep control by
    // reading that they have it.
    constexpr quint32 FrameTotal = 0xA034;
    QTRY_VERIFY(program.readRegister(ControlPrivilege) == Control
                && program.readRegister(FrameTotal) >= 50);
    QCOMPARE(program.readRegister(Acquisition), qint64(1));
}

QTEST_GUILESS_MAIN(ControlTest)

#include "ControlTest.moc"
