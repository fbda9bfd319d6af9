// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// An image that succeeded, from the emission in the host's thread to the return of the slot in the
// tracking thread; the floor is an empty slot with the same signature.

#include "HeldThread.h"
#include "ProviderProbe.h"
#include "Report.h"

#include <memory>

namespace {

using CameraPool::ICameraStatusService;
using Core::CameraPoolComponents::CameraInfoPtr;

constexpr int batch = 1000;

class EmptyReceiver : public QObject
{
public:
    void onImage(CameraInfoPtr camera, const Nerix::CGrabResultPtr &result)
    {
        benchmark::DoNotOptimize(camera);
        benchmark::DoNotOptimize(result);
    }
};

/// Emits a batch and waits until the last one has arrived in \a thread.
void emitBatch(FakeCameraStatusService &cameras, HeldThread &thread,
               const QList<QSharedPointer<FakeCamera>> &from, const Nerix::CGrabResultPtr &result)
{
    thread.hold();
    for (int i = 0; i < batch; ++i) {
        Q_EMIT cameras.cameraImageGrabbed(from.at(i % from.size()), result);
    }
    thread.release();
    thread.run([] {});
}

void successfulFrame(benchmark::State &state)
{
    FakeHost host;
    const auto from = makeCameras(host, static_cast<int>(state.range(0)));
    const auto result = std::make_shared<Nerix::CGrabResultData>(Nerix::CImage());
    ProviderProbe provider(host);
    EmptyReceiver empty;
    FakeCameraStatusService emptyCameras;
    QObject::connect(&emptyCameras, &ICameraStatusService::cameraImageGrabbed, &empty,
                     &EmptyReceiver::onImage);
    HeldThread tracking;
    HeldThread idle;
    tracking.adopt(&provider);
    idle.adopt(&empty);
    tracking.run([&] { provider.startTracking(); });
    rui::benchmarks::Quantiles ours;
    rui::benchmarks::Quantiles floor;
    for ([[maybe_unused]] auto unused : state) {
        ours.measure([&] { emitBatch(*host.cameraStatus, tracking, from, result); });
        floor.measure([&] { emitBatch(emptyCameras, idle, from, result); });
    }
    tracking.run([&] { provider.stopTracking(); });
    report(state, ours, floor, batch);
}
BENCHMARK(successfulFrame)->Apply(cameraCounts)->Iterations(500);

} // namespace
