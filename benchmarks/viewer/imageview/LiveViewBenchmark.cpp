// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The live view at 1920 x 1080 and 60 images a second: what the grab loses without and with the
// view, how soon input is answered, whether memory stays the same. NERIX_LIVE_VIEW_MINUTES says how
// long each of the two runs is; 0.1 if it is not set. The status is 1 if a run failed or nothing
// was shown.

#include "application/CGuardedApplication.h"
#include "CLiveViewRun.h"
#include "CSimulatorProcess.h"
#include "MemoryUse.h"

#include <algorithm>
#include <cstdio>

namespace {

double quantile(QVector<double> values, double part)
{
    if (values.isEmpty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    return values.at(std::min(int(part * values.size()), values.size() - 1));
}

void print(const char *title, const CLiveViewRun::Result &result)
{
    std::printf("%s\n  images %d, failed %d, missed %lld, %.2f images/s\n", title, result.images,
                result.failures, static_cast<long long>(result.missedFrames),
                result.imagesPerSecond);
    if (!result.latencies.isEmpty()) {
        std::printf("  shown %d (%.1f %%)\n", result.shown,
                    100.0 * result.shown / std::max(result.images, 1));
        std::printf(
            "  input answered after: p50 %.2f ms, p99 %.2f ms, longest %.2f ms (%d events)\n",
            quantile(result.latencies, 0.5), quantile(result.latencies, 0.99),
            quantile(result.latencies, 1.0), result.latencies.size());
    }
    // The first part is when buffers and caches come into being.
    const QVector<double> settled = result.memory.mid(result.memory.size() / 5);
    std::printf("  memory: %.1f MiB at first, %.1f MiB at last, rise %.3f MiB/min\n",
                settled.value(0), settled.value(settled.size() - 1), risePerMinute(settled));
    std::printf("  in tenths of the run, MiB:");
    for (int tenth = 1; tenth <= 10 && !result.memory.isEmpty(); ++tenth) {
        std::printf(" %.1f", result.memory.at((result.memory.size() - 1) * tenth / 10));
    }
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char **argv)
{
    Application::CGuardedApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    bool isNumber = false;
    const double given = qEnvironmentVariable("NERIX_LIVE_VIEW_MINUTES").toDouble(&isNumber);
    const double seconds = (isNumber ? given : 0.1) * 60;

    CSimulatorProcess camera;
    if (!camera.start()) {
        std::fprintf(stderr, "the camera does not start: %s\n", qPrintable(camera.errorText()));
        return 1;
    }
    const CLiveViewRun::Result without = CLiveViewRun(false, seconds).run();
    print("without windows", without);
    const CLiveViewRun::Result with = CLiveViewRun(true, seconds).run();
    print("with the live view", with);

    const bool isSeen = with.shown > 0 && with.shown <= with.images && !with.latencies.isEmpty();
    return without.hasSucceeded && with.hasSucceeded && without.images > 0 && isSeen ? 0 : 1;
}
