// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The path filter beside Qt's regular expression engine, on typical error texts and on the worst
// that are known of each. Build with the release preset and run with
// --benchmark_counters_tabular=true. The columns, times in ns per UTF-16 unit:
//
//     filter         the filter
//     floor          asking each unit once for its Unicode class and doing nothing else
//     filter/floor   the filter ends early on some texts, then this is below 1
//     engine         the regular expression engine, its pattern compiled beforehand
//     engine/filter  how many times slower the engine is
//
// The engine is left out (no figure) where one text would take it more than about 20 s.

#include "internal/PathFilter.h"
#include "PathFilterOracle.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <random>

#include <QHash>
#include <QString>

namespace {

using Plugin::UsageTracking::Internal::maskPaths;

struct Kind
{
    const char *name;
    QString (*makeText)(int length);
    int longestForEngine;
};

constexpr int million = 1000000;

QString fill(const QString &piece, int length, const QString &end = QString())
{
    const int repetitions = length / static_cast<int>(piece.size()) + 1;
    return piece.repeated(repetitions).left(length - static_cast<int>(end.size())) + end;
}

QString sentences(int length)
{
    return fill(QStringLiteral("The buffer was incompletely grabbed. "), length);
}

QString sentencesAndPath(int length)
{
    return fill(QStringLiteral("The buffer was incompletely grabbed. "), length,
                QStringLiteral(" Failed to open C:\\data\\line 4\\image.bmp"));
}

QString deepPath(int length)
{
    return fill(QStringLiteral("/srv/images/line 4"), length, QStringLiteral("/image.bmp"));
}

QString slashes(int length)
{
    return fill(QStringLiteral("/"), length);
}

QString lettersAndTwoSlashes(int length)
{
    return fill(QStringLiteral("a"), length, QStringLiteral("//"));
}

QString sentencesAndTwoSlashes(int length)
{
    return fill(QStringLiteral("The grab timed out. "), length, QStringLiteral("//"));
}

QString dotsAndPath(int length)
{
    return fill(QStringLiteral("."), length, QStringLiteral("/x"));
}

QString lineSeparators(int length)
{
    return fill(QStringLiteral("\u2028"), length);
}

// Every unit costs two looks into the Unicode tables, at places that no cache foresees.
QString scatteredUnitsWithFollowers(int length)
{
    std::mt19937 random(1);
    QString text;
    while (text.size() < length - 6) {
        const QChar unit(static_cast<char16_t>(random()));
        const bool isWord = unit.isLetterOrNumber() || unit.isMark() || unit == QLatin1Char('_');
        text += QChar(0x4e2d);
        text += isWord ? QChar(0x2028) : unit;
        text += random() % 2 == 0 ? QLatin1Char(':') : QLatin1Char('/');
    }
    return text + QStringLiteral("a::b/c");
}

constexpr Kind kinds[] = {
    {"typical: sentences", sentences, million},
    {"typical: sentences and a path", sentencesAndPath, 10000},
    {"typical: a deep path", deepPath, million},
    {"worst for the engine: slashes", slashes, 10000},
    {"worst for the engine: letters, two slashes", lettersAndTwoSlashes, 10000},
    {"worst for the engine: sentences, two slashes", sentencesAndTwoSlashes, 10000},
    {"worst for the filter: dots and a path", dotsAndPath, million},
    {"worst for the filter: line separators", lineSeparators, million},
    {"worst for the filter: scattered units", scatteredUnitsWithFollowers, million},
};

// Processor time, so that other load on the machine does not count. Reading that clock takes longer
// than filtering a short text, so the runs between two readings double.
template <typename Function>
double nanosecondsOf(Function function)
{
    constexpr std::clock_t enough = CLOCKS_PER_SEC / 50;
    std::clock_t elapsed = 0;
    int runs = 0;
    for (int batch = 1; elapsed < enough; batch *= 2) {
        const std::clock_t begin = std::clock();
        for (int i = 0; i < batch; ++i) {
            benchmark::DoNotOptimize(function());
        }
        elapsed += std::clock() - begin;
        runs += batch;
    }
    return static_cast<double>(elapsed) * 1e9 / CLOCKS_PER_SEC / runs;
}

qint64 countLetters(const QString &text)
{
    return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

// Once for each text: the benchmark library calls a benchmark several times to find the number of
// iterations, and the engine takes seconds.
double engineNanosecondsOf(const QString &text)
{
    static const PathFilterOracle engine;
    static QHash<QString, double> known;
    if (!known.contains(text)) {
        known[text] = nanosecondsOf([&text] { return engine.maskPaths(text); });
    }
    return known[text];
}

void runPathFilter(benchmark::State &state, const Kind &kind)
{
    const QString text = kind.makeText(static_cast<int>(state.range(0)));
    const auto perUnit = [&text](double nanoseconds) { return nanoseconds / text.size(); };
    for (auto _ : state) {
        benchmark::DoNotOptimize(maskPaths(text));
    }
    const double filter = perUnit(nanosecondsOf([&text] { return maskPaths(text); }));
    const double floor = perUnit(nanosecondsOf([&text] { return countLetters(text); }));
    state.counters["filter"] = filter;
    state.counters["floor"] = floor;
    state.counters["filter/floor"] = filter / floor;
    if (text.size() <= kind.longestForEngine) {
        const double slow = perUnit(engineNanosecondsOf(text));
        state.counters["engine"] = slow;
        state.counters["engine/filter"] = slow / filter;
    }
}

} // namespace

int main(int argc, char **argv)
{
    for (const Kind &kind : kinds) {
        benchmark::RegisterBenchmark(kind.name, runPathFilter, kind)
            ->RangeMultiplier(10)
            ->Range(100, million);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
