// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "plugins/camerapool/CCameraInfo.h"
#include "plugins/camerapool/CDevice.h"
#include "plugins/camerapool/CDeviceAccess.h"
#include "plugins/camerapool/CStream.h"

#include <ParameterCollection/CParameterException.h>

#include <atomic>

#include <QScopeGuard>
#include <QSemaphore>
#include <QTest>

using namespace CameraPool;

// How long an open device is waited for, at the camera that Aravis has in itself.
class DeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deviceThatSaysThatItIsThereIsWaitedFor();
    void deviceThatIsBusyAndThenStopsAnsweringIsLost();
    void singleImageIsAwaitedForExposureAndFramePeriod_data();
    void singleImageIsAwaitedForExposureAndFramePeriod();
};

namespace {

QSharedPointer<CDevice> makeDevice(const std::function<void()> &onLost,
                                   const std::function<bool()> &isAnswering)
{
    CGError error;
    return QSharedPointer<CDevice>::create(
        QSharedPointer<CCameraInfo>::create(CFoundCamera()),
        GObjectPtr<ArvDevice>(arv_fake_device_new("1", error.out())), onLost, isAnswering);
}

} // namespace

void DeviceTest::deviceThatSaysThatItIsThereIsWaitedFor()
{
    QSemaphore questions;
    const auto device = makeDevice([] {},
                                   [&] {
                                       questions.release();
                                       return true;
                                   });
    // As a camera that writes its settings: it takes longer than Aravis waits for any answer.
    const auto goOn = qScopeGuard([&] { questions.release(6); });
    int result = 0;
    try {
        result = device->call([&](const CDeviceAccess &) {
            questions.acquire(6);
            return 7;
        });
    } catch (const ParameterCollection::CParameterException &exception) {
        QFAIL(exception.what());
    }
    QCOMPARE(result, 7);
    QVERIFY(device->isOpen());
}

void DeviceTest::deviceThatIsBusyAndThenStopsAnsweringIsLost()
{
    std::atomic<int> questions{0};
    std::atomic<int> losses{0};
    QSemaphore end;
    const auto device = makeDevice([&] { ++losses; }, [&] { return ++questions < 3; });
    const auto goOn = qScopeGuard([&] { end.release(); });
    QVERIFY_EXCEPTION_THROWN(device->call([&](const CDeviceAccess &) { end.acquire(); }),
                             ParameterCollection::CParameterException);
    QCOMPARE(questions.load(), 3);
    QCOMPARE(losses.load(), 1);
    QVERIFY(device->isLost());
}

void DeviceTest::singleImageIsAwaitedForExposureAndFramePeriod_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("25 Hz: 10 + 40 + 5000") << 25.0 << 5050;
    QTest::newRow("0.5 Hz: 10 + 2000 + 5000") << 0.5 << 7010;
}

void DeviceTest::singleImageIsAwaitedForExposureAndFramePeriod()
{
    QFETCH(double, rate);
    const auto device = makeDevice([] {}, [] { return true; });
    device->call([rate](const CDeviceAccess &access) {
        CGError error;
        for (const char *name : {"AcquisitionFrameRate", "AcquisitionFrameRateAbs"}) {
            arv_device_set_float_feature_value(access.device(), name, rate, error.out());
        }
    });
    const CStream stream(device, GrabSingle);
    QTEST(int(stream.singlePatience().count()), "milliseconds");
}

QTEST_GUILESS_MAIN(DeviceTest)
#include "DeviceTest.moc"
