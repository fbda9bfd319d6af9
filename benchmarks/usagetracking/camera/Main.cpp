// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What tracking costs at a camera, each figure beside its floor, taken in turns so that a slow
// moment of the machine hits both. Build with the release preset and run
//
//     tools/in-network-namespace.sh build/release/benchmarks/bin/CameraBenchmark
//         --benchmark_counters_tabular=true
//
// The columns, at the median:
//
//     fps, floor_fps            images a second with tracking, and without
//     p50_us, floor_us          microseconds, and the same of the floor
//     ratio                     ours by the floor's
//     bytes_each, floor_bytes   bytes of the heap for each observer, and for each of the floor

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QTemporaryDir>

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    const QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
    QCoreApplication::setApplicationName(QStringLiteral("nerix-benchmark"));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
