// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// How long the window is busy with the tree of the features, for cameras of several sizes: when it
// is shown first, and at each key in the search field. The floor is the work that nobody can spare:
// looking at every name once.

#include "plugins/featuretree/CFeatureFilter.h"
#include "plugins/featuretree/CFeatureModel.h"
#include "plugins/featuretree/CFeatureView.h"

#include <benchmark/benchmark.h>

#include <chrono>

#include <QApplication>
#include <QVector>

using namespace FeatureTree;
using namespace ParameterCollection;

namespace {

constexpr int featuresInACategory = 20;

// As a camera describes them: a category, what is in it, the next category.
QVector<CFeatureDescription> describe(int count)
{
    QVector<CFeatureDescription> features;
    QString category;
    for (int i = 0; i < count; ++i) {
        CFeatureDescription feature;
        const bool isCategory = i % featuresInACategory == 0;
        feature.name = QStringLiteral("%1%2").arg(isCategory ? QStringLiteral("Category")
                                                             : QStringLiteral("QmzFeature"),
                                                  QString::number(i));
        feature.displayName = QStringLiteral("Feature number %1").arg(i);
        feature.fullName = QStringLiteral("@CameraDevice/") + feature.name;
        feature.type = isCategory ? InterfaceCategory : InterfaceInteger;
        feature.category = isCategory ? QString() : category;
        category = isCategory ? feature.fullName : category;
        features.append(feature);
    }
    return features;
}

// The tree on the screen, in a window of a common size.
struct Tree
{
    explicit Tree(int count)
        : features(describe(count))
    {
        filter.setSourceModel(&model);
        view.setModel(&filter);
        view.resize(400, 800);
        view.show();
        model.setFeatures(features);
    }

    void search(const QString &text)
    {
        view.quietly([&] { filter.setWords(text); });
        view.setEverythingOpen(!text.isEmpty());
        view.viewport()->repaint();
    }

    const QVector<CFeatureDescription> features;
    CFeatureModel model;
    CFeatureFilter filter;
    CFeatureView view;
};

int countNames(const QVector<CFeatureDescription> &features, const QString &word)
{
    int found = 0;
    for (const CFeatureDescription &feature : features) {
        found += feature.name.contains(word, Qt::CaseInsensitive)
                         || feature.displayName.contains(word, Qt::CaseInsensitive)
                     ? 1
                     : 0;
    }
    return found;
}

double floorMicroseconds(const QVector<CFeatureDescription> &features)
{
    constexpr int rounds = 20;
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < rounds; ++i) {
        benchmark::DoNotOptimize(countNames(features, QStringLiteral("7")));
    }
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - begin;
    return time.count() / rounds;
}

void showFeatures(benchmark::State &state)
{
    Tree tree(int(state.range(0)));
    for (auto _ : state) {
        tree.model.setFeatures(tree.features);
        tree.view.viewport()->repaint();
    }
    state.counters["floor_us"] = floorMicroseconds(tree.features);
}

void searchFeatures(benchmark::State &state)
{
    Tree tree(int(state.range(0)));
    const QStringList typed{QStringLiteral("7"), QStringLiteral("77"), QStringLiteral("7")};
    int i = 0;
    for (auto _ : state) {
        tree.search(typed.at(i++ % typed.size()));
    }
    state.counters["floor_us"] = floorMicroseconds(tree.features);
}

BENCHMARK(showFeatures)->Arg(40)->Arg(840)->Arg(5000)->Unit(benchmark::kMicrosecond);
BENCHMARK(searchFeatures)->Arg(40)->Arg(840)->Arg(5000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
