// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CSimulatorProcess.h"

#include <QTest>

// The program as its user meets it: what it says, how it answers, how it ends.
class ProcessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSaysItsAddressAndSerialWhenReady();
    void testAnswersEachCommandWithOneLine();
    void testRefusesATakenAddress();
};

void ProcessTest::testSaysItsAddressAndSerialWhenReady()
{
    CSimulatorProcess camera({QStringLiteral("--serial"), QStringLiteral("A-7")});
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QCOMPARE(camera.readyLine(),
             QStringLiteral("ready: Ostrand XQZ-2000 at 127.0.0.1, serial A-7"));
    QCOMPARE(camera.address(), QStringLiteral("127.0.0.1"));
    QCOMPARE(camera.serial(), QStringLiteral("A-7"));
    QVERIFY(camera.stop());
}

void ProcessTest::testAnswersEachCommandWithOneLine()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QCOMPARE(camera.command(QStringLiteral("loss 0.05")), QStringLiteral("loss 0.05"));
    QCOMPARE(camera.command(QStringLiteral("vanish")), QStringLiteral("vanished"));
    QCOMPARE(camera.command(QStringLiteral("return")), QStringLiteral("returned"));
    QCOMPARE(camera.command(QStringLiteral("quit")), QStringLiteral("bye"));
}

void ProcessTest::testRefusesATakenAddress()
{
    CSimulatorProcess first;
    QVERIFY2(first.start(), qPrintable(first.errorText()));
    CSimulatorProcess second;
    QVERIFY(!second.start());
    QCOMPARE(second.exitStatus(), 1);
    QCOMPARE(second.errorText(),
             QStringLiteral("nerix-camera-simulator: address 127.0.0.1 is taken by another camera:"
                            " end that one or choose another with --address\n"));
}

QTEST_GUILESS_MAIN(ProcessTest)

#include "ProcessTest.moc"
