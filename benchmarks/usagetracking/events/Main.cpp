// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What events cost the viewer, each figure beside its floor, taken in turns so that a slow moment
// of the machine hits both. Build with the release preset and run with
// --benchmark_counters_tabular=true. The columns, at the median:
//
//     p50_us       microseconds
//     floor_us     the same of the floor, which each source describes
//     ratio        ours by the floor's
//     beyond_us    ours less the floor's
//     bytes_each   bytes of the heap for each observer, and for each of the floor

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
