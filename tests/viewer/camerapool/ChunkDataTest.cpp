// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CPoolRig.h"
#include "CSimulatorProcess.h"
#include "GvspSender.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CDevice.h"
#include "plugins/camerapool/CDeviceAccess.h"
#include "plugins/camerapool/CDeviceStore.h"

#include <QTest>

using namespace CameraPool;

// Images whose stream says that they have chunk data, which the simulated camera does not send.
class ChunkDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void imageWithChunkDataIsAnImage_data();
    void imageWithChunkDataIsAnImage();
};

namespace {

const QString A1 = QStringLiteral("A1");

} // namespace

void ChunkDataTest::imageWithChunkDataIsAnImage_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("none added") << int(GvspSender::Image);
    QTest::newRow("added by a camera of GigE Vision 1") << int(GvspSender::ExtendedChunkData);
}

void ChunkDataTest::imageWithChunkDataIsAnImage()
{
    QFETCH(int, type);
    CSimulatorProcess simulator({QStringLiteral("--serial"), A1});
    QVERIFY2(simulator.start(), qPrintable(simulator.errorText()));
    CPoolRig rig;
    QVERIFY(rig.search());
    const CPoolRig::CameraInfoPtr camera = rig.camera(A1);
    QVERIFY(camera);
    QVERIFY(rig.open(camera));
    const auto device = rig.pool().devices()->device(camera);
    device->call([](const CDeviceAccess &access) {
        CGError error;
        ArvDevice *arvDevice = access.device();
        arv_device_set_integer_feature_value(arvDevice, "Width", 64, error.out());
        arv_device_set_integer_feature_value(arvDevice, "Height", 8, error.out());
        // So that it sends nothing itself.
        arv_device_set_string_feature_value(arvDevice, "TriggerMode", "On", error.out());
    });
    rig.pool().control()->grabContinuous(camera);
    QVERIFY(rig.waitFor(QStringLiteral("grabStarted A1")));
    const auto port = device->call([](const CDeviceAccess &access) {
        guint32 value = 0; // register of the first stream's port
        arv_device_read_register(access.device(), 0x0d00, &value, nullptr);
        return quint16(value & 0xffffU);
    });
    // The first can be sent before the stream listens.
    quint16 id = 0;
    QVERIFY(QTest::qWaitFor([&] {
        GvspSender::send(port, ++id, GvspSender::PayloadType(type), 64, QByteArray(512, 'x'));
        return !rig.grabbed(A1).images.isEmpty();
    }));
    const Nerix::CImage image = rig.grabbed(A1).images.first()->image();
    QCOMPARE(int(image.width), 64);
    QCOMPARE(int(image.height), 8);
    QCOMPARE(quint32(image.pixelFormat), 0x01080001U);
}

QTEST_GUILESS_MAIN(ChunkDataTest)
#include "ChunkDataTest.moc"
