// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptWait.h"

#include <QTest>
#include <QThread>
#include <QTimer>

using namespace std::chrono_literals;
using Scripting::CScriptWait;
using Result = CScriptWait::Result;

class ScriptWaitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testConditionThatHoldsIsMetWithoutALimit();
    void testConditionMayComeTrueByAnEvent();
    void testConditionMayComeTrueInAnotherThread();
    void testWakingLooksAtOnce();
    void testLimitEndsTheWait();
    void testStopEndsTheWait();
    void testNothingWaitsOnceStopped();
    void testWaitsMayNest();
};

namespace {

bool never()
{
    return false;
}

} // namespace

void ScriptWaitTest::testConditionThatHoldsIsMetWithoutALimit()
{
    CScriptWait wait;
    QCOMPARE(wait.until([] { return true; }, 0ms), Result::Met);
}

void ScriptWaitTest::testConditionMayComeTrueByAnEvent()
{
    CScriptWait wait;
    bool happened = false;
    QTimer::singleShot(0, this, [&happened] { happened = true; });
    QCOMPARE(wait.until([&happened] { return happened; }, 60s), Result::Met);
}

void ScriptWaitTest::testConditionMayComeTrueInAnotherThread()
{
    CScriptWait wait;
    std::atomic<bool> happened{false};
    const QScopedPointer<QThread> thread(QThread::create([&happened] { happened = true; }));
    thread->start();
    QCOMPARE(wait.until([&happened] { return happened.load(); }, 60s), Result::Met);
    QVERIFY(thread->wait());
}

void ScriptWaitTest::testWakingLooksAtOnce()
{
    CScriptWait wait(1h);
    std::atomic<bool> happened{false};
    const QScopedPointer<QThread> thread(QThread::create([&happened] {
        happened = true;
        CScriptWait::wake();
    }));
    QTimer::singleShot(0, thread.data(), [&thread] { thread->start(); });
    QCOMPARE(wait.until([&happened] { return happened.load(); }, 2h), Result::Met);
    QVERIFY(thread->wait());
}

void ScriptWaitTest::testLimitEndsTheWait()
{
    CScriptWait wait;
    QCOMPARE(wait.until(never, 20ms), Result::TimedOut);
}

void ScriptWaitTest::testStopEndsTheWait()
{
    CScriptWait wait;
    const QScopedPointer<QThread> thread(QThread::create([&wait] { wait.stop(); }));
    QTimer::singleShot(0, thread.data(), [&thread] { thread->start(); });
    QCOMPARE(wait.until(never, 600s), Result::Stopped);
    QVERIFY(thread->wait());
}

void ScriptWaitTest::testNothingWaitsOnceStopped()
{
    CScriptWait wait;
    wait.stop();
    QCOMPARE(wait.until(never, 600s), Result::Stopped);
    QVERIFY(wait.isStopped());
}

void ScriptWaitTest::testWaitsMayNest()
{
    CScriptWait wait;
    bool happened = false;
    Result inner = Result::Met;
    QTimer::singleShot(0, this, [&] {
        inner = wait.until(never, 20ms);
        happened = true;
    });
    QCOMPARE(wait.until([&happened] { return happened; }, 60s), Result::Met);
    QCOMPARE(inner, Result::TimedOut);
}

QTEST_GUILESS_MAIN(ScriptWaitTest)

#include "ScriptWaitTest.moc"
