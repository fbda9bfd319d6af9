// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Every history of the consent up to six steps, against an independent model.

#include "ConsentHistory.h"
#include "TestMain.h"

#include <vector>

#include <QSemaphore>

namespace {

constexpr int stepsAfterStart = 5;
/// Histories that run beside each other: as many tracking threads.
constexpr int batchSize = 256;
const QString letters = QStringLiteral("ynar");

QString lettersOf(int history)
{
    QString steps;
    for (int i = 0; i < stepsAfterStart; ++i, history /= letters.size()) {
        steps.append(letters.at(history % letters.size()));
    }
    return steps;
}

using Batch = std::vector<std::unique_ptr<ConsentHistory>>;

void settle(const Batch &batch)
{
    QSemaphore settled;
    for (const auto &history : batch) {
        history->whenSettled([&] { settled.release(); });
    }
    for (std::size_t i = 0; i < batch.size(); ++i) {
        settled.acquire();
    }
}

void verify(const Batch &batch)
{
    for (const auto &history : batch) {
        const QString fault = history->fault();
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }
}

} // namespace

class ConsentHistoriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        RecordingAnalytics::instance().reset();
    }

    void everyHistoryAgreesWithTheModel_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("selected");
        QTest::addColumn<int>("first");
        constexpr int histories = 4 * 4 * 4 * 4 * 4;
        for (int stored = 0; stored < 4; ++stored) {
            for (int first = 0; first < histories; first += batchSize) {
                QTest::addRow("stored answer %d, selected %d, from %d", stored & 1, stored >> 1,
                              first)
                    << bool(stored & 1) << bool(stored & 2) << first;
            }
        }
    }

    void everyHistoryAgreesWithTheModel()
    {
        QFETCH(bool, enabled);
        QFETCH(bool, selected);
        QFETCH(int, first);
        Batch batch;
        for (int i = 0; i < batchSize; ++i) {
            batch.push_back(
                std::make_unique<ConsentHistory>(enabled, selected, lettersOf(first + i)));
            batch.back()->start();
        }
        settle(batch);
        verify(batch);
        for (int index = 0; index < stepsAfterStart && !QTest::currentTestFailed(); ++index) {
            for (const auto &history : batch) {
                history->step(index);
            }
            settle(batch);
            verify(batch);
        }
        for (const auto &history : batch) {
            history->shutDown();
        }
        if (!QTest::currentTestFailed()) {
            verify(batch);
        }
    }
};

NERIX_TEST_MAIN(ConsentHistoriesTest)
#include "ConsentHistoriesTest.moc"
