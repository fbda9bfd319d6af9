// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "COpenCamera.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"

#include <atomic>
#include <thread>
#include <vector>

#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <QTimer>

using namespace CameraPool;
using namespace ParameterCollection;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

// A camera that vanishes: what is told, and what its parameters answer.
class LossTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cameraThatVanishesAndReturnsIsReportedOnceEachTime();
    void openCameraThatVanishesIsClosedAndThenDisconnected();
    void openCameraCanBeOpenedAgainWhenItIsBack();
    void everyParameterOfALostCameraIsUnavailableAndThrows();
    void featureStreamOfALostCameraLeavesEverythingOutDuringClosing();
    void openingACameraThatHasJustVanishedFailsWithItsNameAndTheRemedy();
    void openingACameraWhoseClosingHangsFailsWithItsNameAndTheRemedy();
    void openingACameraThatVanishesMeanwhileEnds();
    void cameraThatIsBackIsThereOnceItCanBeOpened();
    void threadsThatReadWhileTheCameraVanishesAreAllRefused();
    void closingACameraThatVanishedEndsWithClosed();
    void closeAllEndsWhenACameraHasVanished();
    void anotherCameraStaysOpenAndReadable();
    void theThreadOfTheWindowsGoesOn();
};

namespace {

const QString vanish = QStringLiteral("vanish");
const QString comeBack = QStringLiteral("return");

// Reads until the camera refuses. @return the reason.
QString readUntilRefused(IParameter &parameter)
{
    try {
        for (;;) {
            parameter.valueText();
        }
    } catch (const CParameterException &exception) {
        return exception.message();
    }
}

// A pool that does not notice what is gone by looking for it.
CPoolTiming searchOnce()
{
    CPoolTiming timing;
    timing.firstSearchDelay = 0;
    timing.searchPause = 1000000;
    return timing;
}

const QString &goneMessage()
{
    static const QString text = QStringLiteral(
        "Ostrand-XQZ-2000-A1 is gone: check its cable and power, then open it again");
    return text;
}

} // namespace

void LossTest::cameraThatVanishesAndReturnsIsReportedOnceEachTime()
{
    CSimulatorProcess simulator({QStringLiteral("--serial"), QStringLiteral("A1")});
    QVERIFY(simulator.start());
    CPoolRig rig;
    QVERIFY(rig.search());
    QStringList expected{QStringLiteral("connected A1"), QStringLiteral("enumeration")};
    for (int round = 1; round <= 20; ++round) {
        QCOMPARE(simulator.command(vanish), QStringLiteral("vanished"));
        QVERIFY(rig.waitFor(QStringLiteral("enumeration"), 2 * round));
        QCOMPARE(simulator.command(comeBack), QStringLiteral("returned"));
        QVERIFY(rig.waitFor(QStringLiteral("enumeration"), 2 * round + 1));
        expected += {QStringLiteral("disconnected A1"), QStringLiteral("enumeration"),
                     QStringLiteral("connected A1"), QStringLiteral("enumeration")};
    }
    QCOMPARE(rig.log(), expected);
}

void LossTest::openCameraThatVanishesIsClosedAndThenDisconnected()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    camera.rig().clearLog();
    QCOMPARE(camera.simulator().command(vanish), QStringLiteral("vanished"));
    QVERIFY(camera.rig().waitFor(QStringLiteral("enumeration")));
    QCOMPARE(camera.rig().log(),
             (QStringList{QStringLiteral("closing A1"), QStringLiteral("closed A1"),
                          QStringLiteral("disconnected A1"), QStringLiteral("enumeration")}));
    QCOMPARE(camera.rig().pool().control()->state(camera.info()), ICameraControlService::Gone);
}

void LossTest::openCameraCanBeOpenedAgainWhenItIsBack()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    for (int round = 1; round <= 3; ++round) {
        QCOMPARE(camera.simulator().command(vanish), QStringLiteral("vanished"));
        QVERIFY(camera.rig().waitFor(QStringLiteral("disconnected A1"), round));
        QCOMPARE(camera.simulator().command(comeBack), QStringLiteral("returned"));
        QVERIFY(camera.rig().waitFor(QStringLiteral("connected A1"), round + 1));
        QVERIFY(camera.rig().open(camera.info()));
        const auto parameters = camera.service().parameterCollection(camera.info());
        QCOMPARE(parameters->parameter(QStringLiteral("@CameraDevice/Width"))->valueText(),
                 QStringLiteral("512"));
    }
}

void LossTest::everyParameterOfALostCameraIsUnavailableAndThrows()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    const auto all = camera.parameters().parameters();
    camera.simulator().kill();
    QCOMPARE(readUntilRefused(*camera.feature("Width")), goneMessage());

    int count = 0;
    for (const auto &parameter : all) {
        if (parameter->fullName().startsWith(QLatin1String("@StreamGrabber0"))) {
            continue;
        }
        ++count;
        QVERIFY2(parameter->isUnavailable(), qPrintable(parameter->fullName()));
        QVERIFY(!parameter->isReadable());
        QVERIFY(!parameter->isUserSettable());
        QVERIFY_EXCEPTION_THROWN(parameter->valueText(), CParameterException);
        QVERIFY_EXCEPTION_THROWN(parameter->setValueText(QStringLiteral("1")), CParameterException);
    }
    QVERIFY(count > 40);
}

void LossTest::featureStreamOfALostCameraLeavesEverythingOutDuringClosing()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    QThread otherThread;
    QObject receiver;
    receiver.moveToThread(&otherThread);
    otherThread.start();
    QString stream;
    connect(
        camera.rig().pool().status().get(), &CCameraStatus::deviceClosing, &receiver,
        [&] { stream = camera.parameters().featureStream(QStringLiteral("@CameraDevice")); },
        Qt::BlockingQueuedConnection);
    camera.simulator().kill();
    QVERIFY(camera.rig().waitFor(QStringLiteral("disconnected A1")));
    otherThread.quit();
    otherThread.wait();
    QCOMPARE(stream, QStringLiteral("# nerix feature stream 1: 0 features, 39 not readable\n"));
}

void LossTest::openingACameraWhoseClosingHangsFailsWithItsNameAndTheRemedy()
{
    CSimulatorProcess simulator({QStringLiteral("--serial"), QStringLiteral("A1")});
    QVERIFY(simulator.start());
    CPoolRig rig(searchOnce());
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QVERIFY(rig.open(camera));
    simulator.kill();
    QVERIFY(rig.close(camera));
    QVERIFY(!rig.open(camera));
    QCOMPARE(rig.lastFailure(),
             QStringLiteral("Ostrand-XQZ-2000-A1 is still being closed, since it has not answered "
                            "for a while: open it again in some seconds"));
}

void LossTest::openingACameraThatHasJustVanishedFailsWithItsNameAndTheRemedy()
{
    CSimulatorProcess simulator({QStringLiteral("--serial"), QStringLiteral("A1")});
    QVERIFY(simulator.start());
    CPoolRig rig(searchOnce());
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    simulator.kill();
    QVERIFY(!rig.open(camera));
    QCOMPARE(rig.lastFailure(),
             QStringLiteral("Ostrand-XQZ-2000-A1 does not answer: check its cable and power, then "
                            "open it again"));
}

void LossTest::openingACameraThatVanishesMeanwhileEnds()
{
    CSimulatorProcess simulator({QStringLiteral("--serial"), QStringLiteral("A1")});
    QVERIFY(simulator.start());
    CPoolRig rig;
    QVERIFY(rig.search());
    rig.pool().control()->open(rig.camera(QStringLiteral("A1")));
    simulator.kill();
    QVERIFY(rig.waitFor(QStringLiteral("disconnected A1")));
    QCOMPARE(rig.log().count(QStringLiteral("opened A1")),
             rig.log().count(QStringLiteral("closing A1")));
    QCOMPARE(rig.log().count(QStringLiteral("opened A1"))
                 + rig.log().count(QStringLiteral("openFailed A1")),
             1);
}

void LossTest::cameraThatIsBackIsThereOnceItCanBeOpened()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    camera.simulator().kill();
    QVERIFY(camera.rig().waitFor(QStringLiteral("disconnected A1")));
    QVERIFY(camera.simulator().start());
    QVERIFY(camera.rig().waitFor(QStringLiteral("connected A1"), 2));
    QVERIFY(camera.rig().open(camera.rig().camera(QStringLiteral("A1"))));
    QCOMPARE(camera.rig().log().count(QStringLiteral("openFailed A1")), 0);
}

void LossTest::threadsThatReadWhileTheCameraVanishesAreAllRefused()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    std::vector<std::thread> readers;
    std::atomic<int> refused{0};
    for (const char *name : {"Width", "ExposureTime", "PixelFormat", "DeviceModelName"}) {
        readers.emplace_back([&, parameter = camera.feature(name)] {
            refused += readUntilRefused(*parameter) == goneMessage() ? 1 : 0;
        });
    }
    camera.simulator().kill();
    for (std::thread &reader : readers) {
        reader.join();
    }
    QCOMPARE(refused.load(), 4);
}

void LossTest::closingACameraThatVanishedEndsWithClosed()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    camera.simulator().kill();
    QVERIFY(camera.rig().close(camera.info()));
    QVERIFY(camera.rig().waitFor(QStringLiteral("disconnected A1")));
    QCOMPARE(camera.rig().log().count(QStringLiteral("closing A1")), 1);
    QCOMPARE(camera.rig().log().count(QStringLiteral("disconnected A1")), 1);
}

void LossTest::closeAllEndsWhenACameraHasVanished()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    camera.simulator().kill();
    QVERIFY(camera.rig().closeAll());
    QCOMPARE(camera.rig().log().count(QStringLiteral("closing A1")), 1);
}

void LossTest::anotherCameraStaysOpenAndReadable()
{
    CSimulatorProcess other({QStringLiteral("--address"), QStringLiteral("127.0.0.2"),
                             QStringLiteral("--serial"), QStringLiteral("B2")});
    QVERIFY(other.start());
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    const auto info = camera.rig().camera(QStringLiteral("B2"));
    QVERIFY(camera.rig().open(info));
    camera.simulator().kill();
    QVERIFY(camera.rig().waitFor(QStringLiteral("disconnected A1")));
    QCOMPARE(camera.rig().log().count(QStringLiteral("closing B2")), 0);
    QCOMPARE(camera.service()
                 .parameterCollection(info)
                 ->parameter(QStringLiteral("@CameraDevice/DeviceID"))
                 ->valueText(),
             QStringLiteral("B2"));
}

// The pool's own threads may wait for seconds for a camera that is gone; this one may not.
void LossTest::theThreadOfTheWindowsGoesOn()
{
    COpenCamera camera;
    QVERIFY(camera.isOpen());
    qint64 longestGap = 0;
    QElapsedTimer sinceTick;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this,
            [&] { longestGap = std::max(longestGap, sinceTick.restart()); });
    sinceTick.start();
    ticks.start(10);
    camera.simulator().kill();
    QVERIFY(camera.rig().waitFor(QStringLiteral("disconnected A1")));
    QVERIFY2(longestGap < 1000, qPrintable(QString::number(longestGap)));
}

QTEST_GUILESS_MAIN(LossTest)
#include "LossTest.moc"
