// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// An opening that attaches observers to 840 parameters, with so many cameras known and the last of
// them opened; the floor makes 840 objects with a connection each.

#include "ProviderProbe.h"
#include "Report.h"

#include <malloc.h>

#include <list>

#include <QObject>

namespace {

using ParameterCollection::IParameter;

constexpr int parameterCount = 840;

/// Gives out the text that it keeps as its name. From a host that makes the text anew for each
/// question an observer keeps those 50 to 80 bytes too, which are not counted here.
class NamedParameter : public FakeParameter
{
public:
    explicit NamedParameter(const QString &fullName)
        : FakeParameter(fullName)
        , m_name(FakeParameter::name())
    {}

    QString name() const override
    {
        return m_name;
    }

private:
    const QString m_name;
};

/// Parameters that are found at once, so that only the attaching takes time.
class ReadyCollection : public FakeParameterCollection
{
public:
    QSharedPointer<ParameterCollection::IBooleanParameter>
    booleanParameter(const QString &) const override
    {
        return m_noBoolean;
    }

    QSharedPointer<ParameterCollection::IEnumerationParameter>
    enumerationParameter(const QString &) const override
    {
        return m_noEnumeration;
    }

private:
    QSharedPointer<FakeBoolean> m_noBoolean = QSharedPointer<FakeBoolean>::create();
    QSharedPointer<FakeEnumeration> m_noEnumeration = QSharedPointer<FakeEnumeration>::create();
};

class BareObserver : public QObject
{
public:
    void onValue(const QString &value)
    {
        benchmark::DoNotOptimize(value);
    }
};

QSharedPointer<ReadyCollection> makeParameters()
{
    auto parameters = QSharedPointer<ReadyCollection>::create();
    for (int i = 0; i < parameterCount; ++i) {
        const QByteArray name = "@CameraDevice/QmzParameter" + QByteArray::number(i);
        parameters->add<NamedParameter>(name.constData());
    }
    return parameters;
}

void attachBareObservers(std::list<BareObserver> &observers, const ReadyCollection &parameters)
{
    for (const auto &parameter : parameters.all) {
        observers.emplace_back();
        QObject::connect(parameter.data(), &IParameter::parameterValueAboutToBeSet,
                         &observers.back(), &BareObserver::onValue);
    }
}

template <class Work>
double bytesEach(Work work)
{
    const std::size_t before = mallinfo2().uordblks;
    work();
    return static_cast<double>(mallinfo2().uordblks - before) / parameterCount;
}

/// A provider that knows so many cameras, none open.
class Setting
{
public:
    explicit Setting(int cameraCount)
        : m_cameras(makeCameras(m_host, cameraCount))
        , m_provider(m_host)
    {
        for (const auto &camera : m_cameras) {
            m_provider.onCameraConnected(camera);
        }
    }

    /// Opens the last camera with parameters of its own.
    void open(const QSharedPointer<FakeParameterCollection> &parameters)
    {
        m_host.parameterService->collections.insert(m_cameras.last().data(), parameters);
        m_provider.onDeviceOpened(m_cameras.last());
    }

private:
    FakeHost m_host;
    QList<QSharedPointer<FakeCamera>> m_cameras;
    ProviderProbe m_provider;
};

void attachObservers(benchmark::State &state)
{
    rui::benchmarks::Quantiles ours;
    rui::benchmarks::Quantiles floor;
    double bytes = 0;
    double floorBytes = 0;
    for ([[maybe_unused]] auto unused : state) {
        Setting setting(static_cast<int>(state.range(0)));
        const auto parameters = makeParameters();
        const auto floorParameters = makeParameters();
        bytes = bytesEach([&] { ours.measure([&] { setting.open(parameters); }); });
        std::list<BareObserver> observers;
        floorBytes = bytesEach(
            [&] { floor.measure([&] { attachBareObservers(observers, *floorParameters); }); });
    }
    report(state, ours, floor);
    state.counters["bytes_each"] = bytes;
    state.counters["floor_bytes"] = floorBytes;
}
BENCHMARK(attachObservers)->Apply(cameraCounts)->Iterations(50);

} // namespace
