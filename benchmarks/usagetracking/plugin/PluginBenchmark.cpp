// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// What the plug-in costs the viewer, each figure beside what cannot be beaten, taken in turns so
// that a slow moment of the machine hits both. Times are microseconds; ratio is ours by the floor's
// at the median.

#include "FakeHost.h"
#include "Floor.h"
#include "internal/EventRecord.h"
#include "Quantiles.h"
#include "UsageTrackingPluginProbe.h"

#include <ruiSDK.h>

#include <benchmark/benchmark.h>

#include <memory>

#include <QApplication>
#include <QDir>
#include <QJsonDocument>
#include <QSemaphore>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

using namespace Plugin::UsageTracking;
using rui::benchmarks::BareInsert;
using rui::benchmarks::Quantiles;

namespace {

constexpr double requestDelay = 100000; // us

/// A thread with an object in it, and no more.
class BareThread
{
public:
    BareThread()
    {
        m_context.moveToThread(&m_thread);
        m_thread.start();
    }

    ~BareThread()
    {
        m_thread.quit();
        m_thread.wait();
    }

    QObject *context()
    {
        return &m_context;
    }

private:
    QThread m_thread;
    QObject m_context;
};

/// Runs \a work 100 ms from now in the thread of \a context, behind what was scheduled before, and
/// waits for its end.
template <class Work>
void runDelayed(QObject *context, Work work)
{
    QSemaphore done;
    QTimer::singleShot(100, context, [&] {
        work();
        done.release();
    });
    done.acquire();
}

void storeConsent()
{
    QSettings settings;
    settings.setValue(QStringLiteral("UsageTracking/OptInEnabled"), true);
    settings.setValue(QStringLiteral("UsageTracking/OptInSelected"), true);
}

void report(benchmark::State &state, Quantiles &ours, Quantiles &floor, double delay = 0)
{
    state.counters["p50"] = ours.at(0.5) - delay;
    state.counters["floor_p50"] = floor.at(0.5) - delay;
    state.counters["p99"] = ours.at(0.99) - delay;
    state.counters["floor_p99"] = floor.at(0.99) - delay;
    state.counters["ratio"] = (ours.at(0.5) - delay) / (floor.at(0.5) - delay);
}

// The call of initialize, beside the start of a bare thread and the reading of two keys.
void initialize(benchmark::State &state)
{
    Quantiles ours;
    Quantiles floor;
    for ([[maybe_unused]] auto unused : state) {
        FakeHost host;
        CUsageTrackingPlugin plugin;
        plugin.preInitialize(&host);
        ours.measure([&] { plugin.initialize(); });
        plugin.uninitialize(&host);

        std::unique_ptr<BareThread> thread;
        floor.measure([&] {
            thread = std::make_unique<BareThread>();
            const QSettings settings;
            benchmark::DoNotOptimize(settings.value(QStringLiteral("UsageTracking/OptInEnabled")));
            benchmark::DoNotOptimize(settings.value(QStringLiteral("UsageTracking/OptInSelected")));
        });
    }
    report(state, ours, floor);
}
BENCHMARK(initialize)->Iterations(200);

// From initializationDone to the first event on disk, less the 100 ms that the request waits on
// purpose; beside a bare timer of that length, a fresh database and one insert.
void firstStoredEvent(benchmark::State &state)
{
    storeConsent();
    Quantiles ours;
    Quantiles floor;
    for ([[maybe_unused]] auto unused : state) {
        const QString directory = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        QDir(directory).removeRecursively();
        FakeHost host;
        CUsageTrackingPlugin plugin;
        plugin.preInitialize(&host);
        plugin.initialize();
        QObject behind;
        behind.moveToThread(&UsageTrackingPluginProbe::trackingThread(plugin));
        ours.measure([&] {
            Q_EMIT host.initializationDone();
            runDelayed(&behind, [] {});
        });
        plugin.uninitialize(&host);

        const QTemporaryDir fresh;
        BareThread thread;
        floor.measure([&] {
            runDelayed(thread.context(), [&] {
                BareInsert(fresh.filePath(QStringLiteral("floor")).toStdString()).run("{}");
            });
        });
    }
    report(state, ours, floor, requestDelay);
}
BENCHMARK(firstStoredEvent)->Iterations(20);

const QString camera = QStringLiteral("Camera");
const QString connected = QStringLiteral("Connected");

QJsonObject cameraValues()
{
    return {
        {QStringLiteral("CameraNr"), 0},
        {QStringLiteral("Model"), QStringLiteral("Ostrand ***-2000")},
    };
}

QJsonObject cameraRecord()
{
    QJsonObject record = cameraValues();
    record.insert(QStringLiteral("EventCategory"), camera);
    record.insert(QStringLiteral("EventName"), connected);
    return record;
}

// One event from the record to the disk, beside the bare serialisation and the bare insert.
void trackedEvent(benchmark::State &state)
{
    const QTemporaryDir directory;
    const ruiInstance instance = ruiCreateInstance(0);
    ruiCreateConfig(instance, qPrintable(directory.path()), "2026110001", "benchmark", "", 3, "", 0,
                    0);
    ruiSetProductData(instance, "Standard", "US English", "7.1.0", "11271");
    ruiStartSDK(instance);
    BareInsert bare(directory.filePath(QStringLiteral("floor")).toStdString());
    Quantiles ours;
    Quantiles floor;
    for ([[maybe_unused]] auto unused : state) {
        ours.measure([&] { Internal::trackEvent(instance, camera, connected, cameraValues()); });
        floor.measure([&] {
            bare.run(QJsonDocument(cameraRecord()).toJson(QJsonDocument::Compact).toStdString());
        });
    }
    ruiStopSDK(instance, 0);
    ruiDestroyInstance(instance);
    report(state, ours, floor);
}
BENCHMARK(trackedEvent)->Iterations(5000);

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
    QCoreApplication::setApplicationName(QStringLiteral("nerix-benchmark"));
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
