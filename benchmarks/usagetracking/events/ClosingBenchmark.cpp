// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// How long the host waits when it emits that a device is closing. The feature stream is at hand, so
// its reading takes no time; the floor is a slot that builds and serialises the same record and is
// waited for in the same way. First with nothing to do in the tracking thread, then with images
// queued in front, which the floor takes with an empty slot.

#include "HeldThread.h"
#include "ProviderProbe.h"
#include "Report.h"

#include <memory>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

using CameraPool::ICameraStatusService;
using CameraPool::IDeviceStatusService;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

class FloorReceiver : public QObject
{
public:
    explicit FloorReceiver(const QString &stream)
        : m_stream(stream)
    {}

    void onDevice(DeviceBaseInfoPtr)
    {
        const QJsonObject record{
            {QStringLiteral("EventCategory"), QStringLiteral("Camera")},
            {QStringLiteral("EventName"), QStringLiteral("Closed")},
            {QStringLiteral("CameraNr"), 0},
            {QStringLiteral("Model"), QStringLiteral("Vendor ***-2000")},
            {QStringLiteral("FeatureStreamStats"), m_stream},
        };
        benchmark::DoNotOptimize(QJsonDocument(record).toJson(QJsonDocument::Compact));
    }

    void onImage(CameraInfoPtr camera, const Nerix::CGrabResultPtr &result)
    {
        benchmark::DoNotOptimize(camera);
        benchmark::DoNotOptimize(result);
    }

private:
    const QString m_stream;
};

/// 840 lines.
QString typicalStream()
{
    QString stream;
    for (int i = 0; i < 840; ++i) {
        stream += QStringLiteral("QmzParameter%1\t%2\n").arg(i).arg(i * 1000);
    }
    return stream;
}

/// Emits that \a camera is closing behind so many images. Measured from the moment at which the
/// thread may take the first of them: until then nothing has been taken from the queue.
void emitClosing(rui::benchmarks::Quantiles &times, FakeCameraStatusService &cameras,
                 HeldThread &thread, const QSharedPointer<FakeCamera> &camera, int images)
{
    static const Nerix::CGrabResultPtr result =
        std::make_shared<Nerix::CGrabResultData>(Nerix::CImage());
    thread.hold();
    for (int i = 0; i < images; ++i) {
        Q_EMIT cameras.cameraImageGrabbed(camera, result);
    }
    times.measure([&] {
        thread.release();
        Q_EMIT cameras.deviceClosing(camera);
    });
}

// Arguments: cameras, images that are queued in front.
void deviceClosing(benchmark::State &state)
{
    FakeHost host;
    const auto all = makeCameras(host, static_cast<int>(state.range(0)));
    host.parametersOf(all.last())->stream = typicalStream();
    ProviderProbe provider(host);
    for (const auto &camera : all) {
        provider.onCameraConnected(camera);
    }
    FloorReceiver floorReceiver(typicalStream());
    FakeCameraStatusService floorCameras;
    QObject::connect(&floorCameras, &ICameraStatusService::cameraImageGrabbed, &floorReceiver,
                     &FloorReceiver::onImage);
    QObject::connect(&floorCameras, &IDeviceStatusService::deviceClosing, &floorReceiver,
                     &FloorReceiver::onDevice, Qt::BlockingQueuedConnection);
    HeldThread tracking;
    HeldThread idle;
    tracking.adopt(&provider);
    idle.adopt(&floorReceiver);
    tracking.run([&] { provider.startTracking(); });
    rui::benchmarks::Quantiles ours;
    rui::benchmarks::Quantiles floor;
    const int images = static_cast<int>(state.range(1));
    for ([[maybe_unused]] auto unused : state) {
        emitClosing(ours, *host.cameraStatus, tracking, all.last(), images);
        emitClosing(floor, floorCameras, idle, all.last(), images);
    }
    tracking.run([&] { provider.stopTracking(); });
    report(state, ours, floor);
}
BENCHMARK(deviceClosing)
    ->ArgNames({"cameras", "images"})
    ->ArgsProduct({{1, 10, 100, 1000}, {0, 10000}})
    ->Iterations(50);

} // namespace
