// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CControlPort.h"
#include "CSimulatorProcess.h"

#include <algorithm>
#include <memory>
#include <vector>

#include <QProcess>
#include <QSignalSpy>
#include <QTest>

// The program as its user meets it: what it says, how it answers, how it ends.
class ProcessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSaysItsAddressAndSerialWhenReady();
    void testAnswersEachCommandWithOneLine();
    void testQuitEndsIt();
    void testNothingIsObeyedAfterQuit();
    void testSignalEndsIt();
    void testEndOfInputEndsNothing();
    void testRefusesATakenAddress();
    void testRefusesAnAddressThatNoInterfaceCarries();
    void testRefusesBadUsageWithOneLine_data();
    void testRefusesBadUsageWithOneLine();
    void testHelpAndVersion();
    void testOneOfManyThatStartAtOnceGetsTheAddress();
    void testKilledCameraLeavesItsAddress();
};

void ProcessTest::testSaysItsAddressAndSerialWhenReady()
{
    CSimulatorProcess camera({"--serial", "A-7"});
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QCOMPARE(camera.readyLine(), QString("ready: Ostrand XQZ-2000 at 127.0.0.1, serial A-7"));
    QCOMPARE(camera.address(), QString("127.0.0.1"));
    QCOMPARE(camera.serial(), QString("A-7"));
    // Ready means that it answers.
    QCOMPARE(CControlPort(camera.address()).discover().size(), 248);
}

void ProcessTest::testAnswersEachCommandWithOneLine()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QSignalSpy answers(&camera, &CSimulatorProcess::answered);
    QCOMPARE(camera.command("loss 0.05"), QString("loss 0.05"));
    QCOMPARE(camera.command("vanish"), QString("vanished"));
    QCOMPARE(camera.command("return"), QString("returned"));
    QCOMPARE(camera.command("fly"), QString("error: unknown command \"fly\": the commands are"
                                            " loss RATIO, vanish, return, quit"));
    QCOMPARE(camera.command("loss all"),
             QString("error: loss needs a ratio from 0 to 1, such as: loss 0.05"));
    QCOMPARE(answers.size(), 5);
    QCOMPARE(camera.errorText(), QString());
}

void ProcessTest::testQuitEndsIt()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QCOMPARE(camera.command("quit"), QString("bye"));
    QTRY_COMPARE(camera.exitStatus(), 0);
    QVERIFY(camera.start());
}

void ProcessTest::testNothingIsObeyedAfterQuit()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QSignalSpy answers(&camera, &CSimulatorProcess::answered);
    QCOMPARE(camera.command("quit\nvanish"), QString("bye"));
    QTRY_COMPARE(camera.exitStatus(), 0);
    QCOMPARE(answers.size(), 1);
}

void ProcessTest::testSignalEndsIt()
{
    for (const char *name : {"-TERM", "-INT"}) {
        CSimulatorProcess camera;
        QVERIFY2(camera.start(), qPrintable(camera.errorText()));
        QCOMPARE(QProcess::execute("kill", {name, QString::number(camera.processId())}), 0);
        QTRY_COMPARE(camera.exitStatus(), 0);
        QCOMPARE(camera.errorText(), QString());
    }
}

void ProcessTest::testEndOfInputEndsNothing()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    camera.closeInput();
    CControlPort port(camera.address());
    for (int i = 0; i < 100; ++i) {
        QCOMPARE(port.discover().size(), 248);
    }
    QVERIFY(camera.isRunning());
    camera.terminate();
    QCOMPARE(camera.exitStatus(), 0);
}

void ProcessTest::testRefusesATakenAddress()
{
    CSimulatorProcess first;
    QVERIFY2(first.start(), qPrintable(first.errorText()));
    CSimulatorProcess second;
    QVERIFY(!second.start());
    QCOMPARE(second.exitStatus(), 1);
    QCOMPARE(second.errorText(),
             QString("nerix-camera-simulator: address 127.0.0.1 is taken by another camera: end"
                     " that one or choose another with --address\n"));
    QVERIFY(first.stop());
    QVERIFY(second.start());
}

void ProcessTest::testRefusesAnAddressThatNoInterfaceCarries()
{
    CSimulatorProcess camera({"--address", "127.9.9.9"});
    QVERIFY(!camera.start());
    QCOMPARE(camera.exitStatus(), 1);
    QCOMPARE(camera.errorText(),
             QString("nerix-camera-simulator: no interface carries the address 127.9.9.9: as root"
                     " run ip link set lo up; ip addr add 127.9.9.9/8 dev lo\n"));
}

void ProcessTest::testRefusesBadUsageWithOneLine_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("line");

    QTest::newRow("an unknown option")
        << QStringList{"--colour"}
        << "nerix-camera-simulator: Unknown option --colour: see nerix-camera-simulator --help\n";
    QTest::newRow("a loss above 1")
        << QStringList{"--loss", "2"}
        << "nerix-camera-simulator: --loss \"2\" is no ratio: give a number from 0 to 1, such as"
           " 0.05\n";
    QTest::newRow("an address of a real network")
        << QStringList{"--address", "10.0.0.1"}
        << "nerix-camera-simulator: --address \"10.0.0.1\" is no loopback address: give one within"
           " 127.0.0.0/8, such as 127.0.0.1, so that nothing is served to a network\n";
}

void ProcessTest::testRefusesBadUsageWithOneLine()
{
    QFETCH(QStringList, options);
    CSimulatorProcess camera(options);
    QVERIFY(!camera.start());
    QCOMPARE(camera.exitStatus(), 2);
    QTEST(camera.errorText(), "line");
    QVERIFY(camera.readyLine().isNull());
}

void ProcessTest::testHelpAndVersion()
{
    QProcess version;
    version.start(NERIX_CAMERA_SIMULATOR, {"--version"});
    QVERIFY(version.waitForFinished());
    QCOMPARE(version.exitCode(), 0);
    QCOMPARE(version.readAllStandardOutput(), QByteArray("nerix-camera-simulator 7.1.0\n"));
    QProcess help;
    help.start(NERIX_CAMERA_SIMULATOR, {"--help"});
    QVERIFY(help.waitForFinished());
    QCOMPARE(help.exitCode(), 0);
    QVERIFY(help.readAllStandardOutput().startsWith("Usage:\n"));
}

void ProcessTest::testOneOfManyThatStartAtOnceGetsTheAddress()
{
    constexpr int Count = 8;
    std::vector<std::unique_ptr<QProcess>> cameras;
    for (int i = 0; i < Count; ++i) {
        cameras.push_back(std::make_unique<QProcess>());
        cameras.back()->start(NERIX_CAMERA_SIMULATOR, {"--serial", QString::number(i)});
    }
    const auto running = [&] {
        return std::count_if(cameras.begin(), cameras.end(), [](const auto &camera) {
            return camera->state() != QProcess::NotRunning;
        });
    };
    QTRY_COMPARE(int(running()), 1);
    for (const auto &camera : cameras) {
        if (camera->state() == QProcess::NotRunning) {
            QCOMPARE(camera->exitCode(), 1);
            QCOMPARE(camera->readAllStandardError().count('\n'), 1);
        } else {
            QTRY_VERIFY(camera->canReadLine());
            camera->terminate();
            QVERIFY(camera->waitForFinished());
        }
    }
}

void ProcessTest::testKilledCameraLeavesItsAddress()
{
    CSimulatorProcess camera;
    for (int i = 0; i < 5; ++i) {
        QVERIFY2(camera.start(), qPrintable(camera.errorText()));
        camera.kill();
        QCOMPARE(camera.exitStatus(), -1);
    }
}

QTEST_GUILESS_MAIN(ProcessTest)

#include "ProcessTest.moc"
