// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The images a second that the simulated camera reaches at 512 x 512 while the plug-in tracks; the
// floor is the same grab while it does not. Each pair begins with the other one of the two. Once at
// a rate that a camera may have and once as fast as the machine goes.

#include "COpenCamera.h"
#include "HeldThread.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "ProviderProbe.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

constexpr int images = 300;
const QString serial = QStringLiteral("A1");

/// A host with the services of the viewer.
void offerServices(FakeHost &host, COpenCamera &camera)
{
    const QList<QSharedPointer<QObject>> replaced{host.cameraStatus, host.enumeration,
                                                  host.parameterService};
    for (const auto &service : replaced) {
        host.removeService(service);
    }
    CameraPool::CCameraPool &pool = camera.rig().pool();
    host.addService(pool.status());
    host.addService(pool.enumeration());
    host.addService(
        QSharedPointer<ParameterCollectionPool::CParameterService>::create(pool.devices()));
}

double grab(COpenCamera &camera, int count)
{
    CPoolRig &rig = camera.rig();
    rig.clearGrabbed();
    rig.clearLog();
    rig.pool().control()->grabContinuous(camera.info());
    rig.waitForImages(serial, count);
    rig.pool().control()->stopGrab(camera.info());
    rig.waitFor(QStringLiteral("grabStopped A1"));
    // Over the whole grab, as told at its end.
    return rig.grabbed(serial).fps;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void frameRate(benchmark::State &state)
{
    COpenCamera camera;
    if (!camera.isOpen()) {
        state.SkipWithError("no simulated camera: run it by tools/in-network-namespace.sh");
        return;
    }
    camera.feature("AcquisitionFrameRate")->setValueText(QString::number(state.range(0)));
    FakeHost host;
    offerServices(host, camera);
    ProviderProbe provider(host);
    HeldThread tracking;
    tracking.adopt(&provider);
    const int count = static_cast<int>(std::min<std::int64_t>(state.range(0), images));

    std::vector<double> with;
    std::vector<double> without;
    std::vector<double> ratios;
    const auto grabTracked = [&] {
        tracking.run([&] { provider.startTracking(); });
        with.push_back(grab(camera, count));
        tracking.run([&] { provider.stopTracking(); });
    };
    const auto grabUntracked = [&] { without.push_back(grab(camera, count)); };
    grab(camera, count); // the first one warms up
    for ([[maybe_unused]] auto unused : state) {
        if (ratios.size() % 2 == 0) {
            grabTracked();
            grabUntracked();
        } else {
            grabUntracked();
            grabTracked();
        }
        ratios.push_back(with.back() / without.back());
    }
    state.counters["fps"] = median(with);
    state.counters["floor_fps"] = median(without);
    state.counters["ratio"] = median(ratios);
}
BENCHMARK(frameRate)->ArgName("rate")->Arg(50)->Iterations(10)->UseRealTime();
BENCHMARK(frameRate)->ArgName("rate")->Arg(1000)->Iterations(30)->UseRealTime();

} // namespace
