// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// An image that failed with a known code, in the slot alone; the floor reads the result. What is
// beyond it is the counting.

#include "ProviderProbe.h"
#include "Report.h"

#include <memory>

namespace {

constexpr int batch = 1000;

void knownFailure(benchmark::State &state)
{
    FakeHost host;
    const auto from = makeCameras(host, static_cast<int>(state.range(0)));
    const Nerix::CGrabResultPtr result = std::make_shared<Nerix::CGrabResultData>(
        0xE1000014U, "The buffer was incompletely grabbed.");
    ProviderProbe provider(host);
    for (const auto &camera : from) {
        provider.onCameraConnected(camera);
        provider.onCameraImageGrabFailed(camera, result);
    }
    rui::benchmarks::Quantiles ours;
    rui::benchmarks::Quantiles floor;
    for ([[maybe_unused]] auto unused : state) {
        ours.measure([&] {
            for (int i = 0; i < batch; ++i) {
                provider.onCameraImageGrabFailed(from.at(i % from.size()), result);
            }
        });
        floor.measure([&] {
            for (int i = 0; i < batch; ++i) {
                benchmark::DoNotOptimize(result->GrabSucceeded());
                benchmark::DoNotOptimize(result->GetErrorCode());
                benchmark::DoNotOptimize(from.at(i % from.size())->identity());
            }
        });
    }
    report(state, ours, floor, batch);
    state.counters["beyond_us"] = (ours.at(0.5) - floor.at(0.5)) / batch;
}
BENCHMARK(knownFailure)->Apply(cameraCounts)->Iterations(500);

} // namespace
