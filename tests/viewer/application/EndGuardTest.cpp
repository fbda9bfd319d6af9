// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CEndGuard.h"

#include <mutex>

#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>

using namespace std::chrono_literals;
using Application::CEndGuard;
using Application::EndStep;

class EndGuardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testStepThatHangsIsAskedAboutAndNotEnded();
    void testAnswerToEndEndsTheStepThatHangs();
    void testWhoWaitsIsAskedAgain();
    void testStepsThatGoOnAreNotAskedAbout();
    void testInsistingLeavesEachStepItsGrace();
    void testInsistingOnAStepIsOverWithIt();
    void testRequestThatIsNotHeededIsTheIdleStep();
    void testRequestDuringAStepChangesNothing();
    void testNothingIsAskedAtRest();
    void testGuardEndsWhileItsQuestionIsOpen();
};

namespace {

// Asks and ends for a test. Lives longer than the threads that ask.
struct Record
{
    QSemaphore questions;
    QSemaphore ends;
    std::mutex mutex;
    QStringList asked;
    QStringList ended;
    bool answer = false;
};

QStringList askedOf(Record &record)
{
    const std::lock_guard<std::mutex> lock(record.mutex);
    return record.asked;
}

QStringList endedOf(Record &record)
{
    const std::lock_guard<std::mutex> lock(record.mutex);
    return record.ended;
}

constexpr CEndGuard::Limits shortLimits{30ms, 30ms, 30ms};
constexpr CEndGuard::Limits onlyGrace{1h, 1h, 50ms};
constexpr int limit = 60000; // ms

EndStep step(const char *line)
{
    return {line, {}};
}

CEndGuard::Asker askerOf(const std::shared_ptr<Record> &record)
{
    return [record](const EndStep &stuck) {
        const std::lock_guard<std::mutex> lock(record->mutex);
        record->asked.append(stuck.line);
        record->questions.release();
        return record->answer;
    };
}

CEndGuard::Ender enderOf(const std::shared_ptr<Record> &record)
{
    return [record](const EndStep &stuck) {
        const std::lock_guard<std::mutex> lock(record->mutex);
        record->ended.append(stuck.line);
        record->ends.release();
    };
}

} // namespace

void EndGuardTest::testStepThatHangsIsAskedAboutAndNotEnded()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), {30ms, 1h, 30ms});
    guard.expect(step("a"));
    QVERIFY(record->questions.tryAcquire(1, limit));
    QVERIFY(!record->ends.tryAcquire(1, 200));
    QCOMPARE(askedOf(*record), QStringList("a"));
}

void EndGuardTest::testAnswerToEndEndsTheStepThatHangs()
{
    const auto record = std::make_shared<Record>();
    record->answer = true;
    CEndGuard guard(askerOf(record), enderOf(record), shortLimits);
    guard.expect(step("a"));
    QVERIFY(record->ends.tryAcquire(1, limit));
    QCOMPARE(endedOf(*record), QStringList("a"));
    QVERIFY(guard.isInsistedOn());
}

void EndGuardTest::testWhoWaitsIsAskedAgain()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), shortLimits);
    guard.expect(step("a"));
    QVERIFY(record->questions.tryAcquire(3, limit));
}

void EndGuardTest::testStepsThatGoOnAreNotAskedAbout()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), {1000ms, 1h, 1h});
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < 1500) {
        guard.expect(step("a"));
    }
    guard.rest(step("idle"));
    QVERIFY(!record->questions.tryAcquire(1, 0));
}

void EndGuardTest::testInsistingLeavesEachStepItsGrace()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), onlyGrace);
    guard.expect(step("a"));
    guard.insist();
    guard.expect(step("b"));
    guard.expect(step("c"));
    QVERIFY(record->ends.tryAcquire(1, limit));
    QCOMPARE(endedOf(*record), QStringList("c"));
}

void EndGuardTest::testInsistingOnAStepIsOverWithIt()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), {1h, 1h, 200ms});
    guard.expect(step("a"));
    guard.insistOnStep();
    guard.expect(step("b"));
    QVERIFY(!record->ends.tryAcquire(1, 500));
    guard.insistOnStep();
    QVERIFY(record->ends.tryAcquire(1, limit));
    QCOMPARE(endedOf(*record), QStringList("b"));
}

void EndGuardTest::testRequestThatIsNotHeededIsTheIdleStep()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), shortLimits);
    guard.rest(step("idle"));
    guard.request();
    QVERIFY(record->questions.tryAcquire(1, limit));
    QCOMPARE(askedOf(*record).first(), QString("idle"));
}

void EndGuardTest::testRequestDuringAStepChangesNothing()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), shortLimits);
    guard.rest(step("idle"));
    guard.expect(step("a"));
    guard.request();
    QVERIFY(record->questions.tryAcquire(1, limit));
    QCOMPARE(askedOf(*record).first(), QString("a"));
}

void EndGuardTest::testNothingIsAskedAtRest()
{
    const auto record = std::make_shared<Record>();
    CEndGuard guard(askerOf(record), enderOf(record), {100ms, 100ms, 100ms});
    guard.expect(step("a"));
    guard.rest(step("idle"));
    guard.insist();
    QVERIFY(!record->questions.tryAcquire(1, 300));
    QVERIFY(!record->ends.tryAcquire(1, 0));
}

// As one does that hangs.
void EndGuardTest::testGuardEndsWhileItsQuestionIsOpen()
{
    const auto record = std::make_shared<Record>();
    const auto answer = std::make_shared<QSemaphore>();
    {
        CEndGuard guard(
            [record, answer](const EndStep &) {
                record->questions.release();
                answer->acquire();
                record->questions.release();
                return true;
            },
            enderOf(record), shortLimits);
        guard.expect(step("a"));
        QVERIFY(record->questions.tryAcquire(1, limit));
    }
    answer->release();
    QVERIFY(record->questions.tryAcquire(1, limit));
    QVERIFY(!record->ends.tryAcquire(1, 0));
}

QTEST_APPLESS_MAIN(EndGuardTest)

#include "EndGuardTest.moc"
