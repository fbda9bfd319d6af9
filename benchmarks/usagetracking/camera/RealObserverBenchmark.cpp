// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// An opening that attaches observers to the viewer's own parameters of a camera with 840 features;
// the floor makes as many objects with a connection each. With "made" 1 the objects of the
// parameters are there already, as after a window has listed them; with 0 the opening makes them.

#include "COpenCamera.h"
#include "plugins/parametercollectionpool/CParameterCollection.h"
#include "ProviderProbe.h"
#include "Report.h"

#include <malloc.h>

#include <list>

namespace {

using ParameterCollection::IParameter;
using ParameterCollectionPool::CParameterCollection;

/// The viewer's parameters, but without a sequencer to ask and a stream to read: just what is
/// observed.
class ObservedOnly : public FakeParameterCollection
{
public:
    explicit ObservedOnly(const QSharedPointer<CParameterCollection> &real)
        : m_real(real)
    {}

    QList<QSharedPointer<IParameter>> parameters() const override
    {
        return m_real->parameters();
    }

private:
    const QSharedPointer<CParameterCollection> m_real;
};

class BareObserver : public QObject
{
public:
    void onValue(const QString &value)
    {
        benchmark::DoNotOptimize(value);
    }
};

void attachBareObservers(std::list<BareObserver> &observers, const CParameterCollection &real)
{
    for (const auto &parameter : real.parameters()) {
        if (!parameter->isUnavailable() && parameter->isUserSettable()) {
            observers.emplace_back();
            QObject::connect(parameter.data(), &IParameter::parameterValueAboutToBeSet,
                             &observers.back(), &BareObserver::onValue);
        }
    }
}

template <class Work>
double heapBytes(Work work)
{
    const std::size_t before = mallinfo2().uordblks;
    work();
    return static_cast<double>(mallinfo2().uordblks - before);
}

void attachToRealParameters(benchmark::State &state)
{
    COpenCamera camera({QStringLiteral("--features"), QStringLiteral("840")});
    if (!camera.isOpen()) {
        state.SkipWithError("no simulated camera: run it by tools/in-network-namespace.sh");
        return;
    }
    const auto device = camera.rig().pool().devices()->device(camera.info());
    rui::benchmarks::Quantiles ours;
    rui::benchmarks::Quantiles floor;
    double bytes = 0;
    double floorBytes = 0;
    double count = 0;
    for ([[maybe_unused]] auto unused : state) {
        FakeHost host;
        const auto opened = host.makeCamera("Ostrand-XQZ-2000-A1", "XQZ-2000");
        const auto real = QSharedPointer<CParameterCollection>::create(device);
        const auto realOfFloor = QSharedPointer<CParameterCollection>::create(device);
        if (state.range(0) != 0) {
            real->parameters();
            realOfFloor->parameters();
        }
        host.parameterService->collections.insert(opened.data(),
                                                  QSharedPointer<ObservedOnly>::create(real));
        ProviderProbe provider(host);
        std::list<BareObserver> observers;
        bytes = heapBytes([&] { ours.measure([&] { provider.onDeviceOpened(opened); }); });
        floorBytes = heapBytes(
            [&] { floor.measure([&] { attachBareObservers(observers, *realOfFloor); }); });
        count = static_cast<double>(observers.size());
    }
    report(state, ours, floor);
    state.counters["observers"] = count;
    state.counters["bytes_each"] = bytes / count;
    state.counters["floor_bytes"] = floorBytes / count;
}
BENCHMARK(attachToRealParameters)->ArgName("made")->Arg(1)->Arg(0)->Iterations(100);

} // namespace
