// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CQuitSignals.h"

#include <unistd.h>

#include <csignal>

#include <QSemaphore>
#include <QTest>
#include <QThread>

using Application::CQuitSignals;

class QuitSignalsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEachSignalCallsTheHandlerOutsideTheThreadThatIsBusy_data();
    void testEachSignalCallsTheHandlerOutsideTheThreadThatIsBusy();
    void testSignalsAreGivenBackAtTheEnd();
    void testObjectCanBeMadeAgain();
};

void QuitSignalsTest::testEachSignalCallsTheHandlerOutsideTheThreadThatIsBusy_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void QuitSignalsTest::testEachSignalCallsTheHandlerOutsideTheThreadThatIsBusy()
{
    QFETCH(int, number);
    QSemaphore calls;
    const QThread *handlerThread = nullptr;
    const CQuitSignals signals([&] {
        handlerThread = QThread::currentThread();
        calls.release();
    });
    for (int round = 0; round < 3; ++round) {
        QCOMPARE(kill(getpid(), number), 0);
        // This thread is blocked, not in an event loop.
        QVERIFY(calls.tryAcquire(1, 60000));
    }
    QVERIFY(handlerThread != QThread::currentThread());
}

void QuitSignalsTest::testSignalsAreGivenBackAtTheEnd()
{
    {
        const CQuitSignals signals([] {});
    }
    struct sigaction action = {};
    QCOMPARE(sigaction(SIGTERM, nullptr, &action), 0);
    QVERIFY(action.sa_handler == SIG_DFL);
}

void QuitSignalsTest::testObjectCanBeMadeAgain()
{
    for (int round = 0; round < 3; ++round) {
        QSemaphore calls;
        const CQuitSignals signals([&] { calls.release(); });
        QCOMPARE(kill(getpid(), SIGTERM), 0);
        QVERIFY(calls.tryAcquire(1, 60000));
    }
}

QTEST_APPLESS_MAIN(QuitSignalsTest)

#include "QuitSignalsTest.moc"
