// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// A change of a parameter, from the slot to the call of the analytics library; the floor builds and
// serialises the same record. Each camera has an observer, and they change in turn.

#include "internal/CParameterChangedHandler.h"
#include "ProviderProbe.h"
#include "Report.h"

#include <list>

#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr int batch = 200;

QByteArray serialised(int number, const QString &name, const QString &last, const QString &value)
{
    return QJsonDocument(
               QJsonObject{
                   {QStringLiteral("EventCategory"), QStringLiteral("ParameterValueChanged")},
                   {QStringLiteral("EventName"), name},
                   {QStringLiteral("CameraNr"), number},
                   {QStringLiteral("ParameterName"), name},
                   {QStringLiteral("InitialValue"), last},
                   {QStringLiteral("ParameterValue"), value},
               })
        .toJson(QJsonDocument::Compact);
}

void parameterChange(benchmark::State &state)
{
    const QString name = QStringLiteral("ExposureTime");
    const QString values[] = {QStringLiteral("10000.5"), QStringLiteral("20000.5")};
    std::list<CParameterChangedHandler> observers;
    for (int i = 0; i < state.range(0); ++i) {
        observers.emplace_back(QSharedPointer<FakeParameter>::create(), name, nullptr, i);
    }
    rui::benchmarks::Quantiles ours;
    rui::benchmarks::Quantiles floor;
    auto observer = observers.begin();
    for ([[maybe_unused]] auto unused : state) {
        ours.measure([&] {
            for (int i = 0; i < batch; ++i) {
                observer->onParameterValueAboutToBeSet(values[i % 2]);
                if (++observer == observers.end()) {
                    observer = observers.begin();
                }
            }
        });
        floor.measure([&] {
            for (int i = 0; i < batch; ++i) {
                benchmark::DoNotOptimize(serialised(i, name, values[(i + 1) % 2], values[i % 2]));
            }
        });
    }
    report(state, ours, floor, batch);
}
BENCHMARK(parameterChange)->Apply(cameraCounts)->Iterations(500);

} // namespace
