// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CPoolRig.h"
#include "CSimulatorProcess.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/camerapool/CDevice.h"
#include "plugins/camerapool/CDeviceAccess.h"
#include "plugins/camerapool/CDeviceStore.h"

#include <ParameterCollection/CParameterException.h>

#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using namespace CameraPool;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

// The camera pool with simulated cameras: what it finds, opens and closes, and what it tells.
class OpenCloseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstSearchIsReportedEvenIfItFindsNothing();
    void connectedCameraIsReportedOnceAndBeforeTheEnumeration();
    void twoCamerasAreListedInTheOrderOfFirstSight();
    void openedCameraIsOpenAndCanBeRead();
    void openingIsHandledWhenTheLastReceiverInAnyThreadHasReturned();
    void openingAnOpenCameraTellsNothing();
    void closingIsToldWhileTheCameraCanStillBeRead();
    void closedCameraRefusesToBeRead();
    void closingACameraThatIsNotOpenEndsWithClosed();
    void cameraControlledByAnotherProgramFailsWithItsNameAndTheRemedy();
    void openingACameraThatIsGoneFailsWithItsNameAndTheRemedy();
    void openingNothingFails();
    void closeAllClosesEveryCameraAndEndsTheSearch();
    void openingAfterCloseAllFails();
    void stoppingThePoolClosesWhatIsOpen();
    void cameraCanBeOpenedAgainAfterClosing();
    void nameThatTheUserGaveIsShownAndTheIdentityStays();
    void newNameStandsInTheMessagesOfAnOpenCamera();
};

namespace {

CSimulatorProcess *startCamera(QObject *parent, const QStringList &options = {})
{
    auto *camera = new CSimulatorProcess(options, parent);
    return camera->start() ? camera : nullptr;
}

QStringList at(const char *address, const char *serial)
{
    return {QStringLiteral("--address"), QString::fromLatin1(address), QStringLiteral("--serial"),
            QString::fromLatin1(serial)};
}

} // namespace

void OpenCloseTest::firstSearchIsReportedEvenIfItFindsNothing()
{
    CPoolRig rig;
    QVERIFY(rig.search());
    QCOMPARE(rig.log(), QStringList{QStringLiteral("enumeration")});
    QVERIFY(rig.pool().control()->cameras().isEmpty());
}

void OpenCloseTest::connectedCameraIsReportedOnceAndBeforeTheEnumeration()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QVERIFY(camera);
    // An opening waits until many searches are over: none of them reported it again.
    QVERIFY(rig.open(camera));
    QVERIFY(rig.close(camera));
    QCOMPARE(rig.log(), (QStringList{QStringLiteral("connected A1"), QStringLiteral("enumeration"),
                                     QStringLiteral("opened A1"), QStringLiteral("closing A1"),
                                     QStringLiteral("closed A1")}));
    QCOMPARE(camera->identity(), QStringLiteral("Ostrand-XQZ-2000-A1"));
    QCOMPARE(camera->displayName(), QStringLiteral("Ostrand-XQZ-2000-A1"));
    QCOMPARE(camera->modelName(), QStringLiteral("XQZ-2000"));
    QCOMPARE(camera->vendorName(), QStringLiteral("Ostrand"));
}

void OpenCloseTest::twoCamerasAreListedInTheOrderOfFirstSight()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.2", "B2")));
    CPoolRig rig;
    QVERIFY(rig.search());
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    QVERIFY(rig.waitFor(QStringLiteral("enumeration"), 2));
    QCOMPARE(rig.log(),
             (QStringList{QStringLiteral("connected B2"), QStringLiteral("enumeration"),
                          QStringLiteral("connected A1"), QStringLiteral("enumeration")}));
    const auto cameras = rig.pool().control()->cameras();
    QCOMPARE(cameras.size(), 2);
    QCOMPARE(cameras.at(0)->identity(), QStringLiteral("Ostrand-XQZ-2000-B2"));
    QCOMPARE(cameras.at(1)->identity(), QStringLiteral("Ostrand-XQZ-2000-A1"));
}

void OpenCloseTest::openedCameraIsOpenAndCanBeRead()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QCOMPARE(rig.pool().control()->state(camera), ICameraControlService::Free);
    QVERIFY(rig.open(camera));
    QCOMPARE(rig.pool().control()->state(camera), ICameraControlService::Open);
    CDeviceAccess access(*rig.pool().devices()->device(camera));
    QVERIFY(arv_gc_get_node(access.genicam(), "Width"));
}

void OpenCloseTest::openingIsHandledWhenTheLastReceiverInAnyThreadHasReturned()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    const auto &control = *rig.pool().control();

    QThread otherThread;
    QObject receiver;
    receiver.moveToThread(&otherThread);
    QSemaphore mayReturn;
    bool wasHandledMeanwhile = true;
    connect(rig.pool().status().get(), &CCameraStatus::deviceOpened, &receiver,
            [&](const DeviceBaseInfoPtr &) {
                mayReturn.acquire();
                wasHandledMeanwhile = control.isOpeningHandled(camera);
            });
    QVERIFY(!control.isOpeningHandled(camera));
    QVERIFY(rig.open(camera));
    QVERIFY(!control.isOpeningHandled(camera)); // still to come for the other thread
    otherThread.start();
    mayReturn.release();
    QTRY_VERIFY(control.isOpeningHandled(camera));
    QVERIFY(!wasHandledMeanwhile);
    otherThread.quit();
    otherThread.wait();
}

void OpenCloseTest::openingAnOpenCameraTellsNothing()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QVERIFY(rig.open(camera));
    rig.pool().control()->open(camera);
    QVERIFY(rig.close(camera));
    QCOMPARE(rig.log().count(QStringLiteral("opened A1")), 1);
    QCOMPARE(rig.log().count(QStringLiteral("openFailed A1")), 0);
}

void OpenCloseTest::closingIsToldWhileTheCameraCanStillBeRead()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QVERIFY(rig.open(camera));

    QThread otherThread;
    QObject receiver;
    receiver.moveToThread(&otherThread);
    otherThread.start();
    QString model;
    connect(
        rig.pool().status().get(), &CCameraStatus::deviceClosing, &receiver,
        [&](const DeviceBaseInfoPtr &device) {
            CDeviceAccess access(*rig.pool().devices()->device(device));
            CGError error;
            model = QString::fromUtf8(arv_device_get_string_feature_value(
                access.device(), "DeviceModelName", error.out()));
        },
        Qt::BlockingQueuedConnection);
    QVERIFY(rig.close(camera));
    otherThread.quit();
    otherThread.wait();
    QCOMPARE(model, QStringLiteral("XQZ-2000"));
}

void OpenCloseTest::closedCameraRefusesToBeRead()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QVERIFY(rig.open(camera));
    QVERIFY(rig.close(camera));
    QCOMPARE(rig.pool().control()->state(camera), ICameraControlService::Free);
    try {
        CDeviceAccess access(*rig.pool().devices()->device(camera));
        QFAIL("the camera is closed");
    } catch (const ParameterCollection::CParameterException &exception) {
        QCOMPARE(exception.message(),
                 QStringLiteral("Ostrand-XQZ-2000-A1 is closed: open it again"));
    }
}

void OpenCloseTest::closingACameraThatIsNotOpenEndsWithClosed()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    QVERIFY(rig.close(rig.camera(QStringLiteral("A1"))));
    QCOMPARE(rig.log().count(QStringLiteral("closing A1")), 0);
}

void OpenCloseTest::cameraControlledByAnotherProgramFailsWithItsNameAndTheRemedy()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig otherProgram;
    QVERIFY(otherProgram.search());
    QVERIFY(otherProgram.open(otherProgram.camera(QStringLiteral("A1"))));

    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QCOMPARE(rig.pool().control()->state(camera), ICameraControlService::InUseElsewhere);
    QVERIFY(!rig.open(camera));
    QCOMPARE(rig.lastFailure(),
             QStringLiteral("Ostrand-XQZ-2000-A1 is in use: another program controls it; close the "
                            "camera there, then open it here again"));
    QCOMPARE(rig.pool().control()->state(camera), ICameraControlService::InUseElsewhere);

    QVERIFY(otherProgram.close(otherProgram.camera(QStringLiteral("A1"))));
    QVERIFY(rig.open(camera));
}

void OpenCloseTest::openingACameraThatIsGoneFailsWithItsNameAndTheRemedy()
{
    QObject scope;
    CSimulatorProcess *simulator = startCamera(&scope, at("127.0.0.1", "A1"));
    QVERIFY(simulator);
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    simulator->kill();
    QVERIFY(rig.waitFor(QStringLiteral("disconnected A1")));
    QCOMPARE(rig.pool().control()->state(camera), ICameraControlService::Gone);
    QVERIFY(!rig.open(camera));
    QCOMPARE(rig.lastFailure(), QStringLiteral("Ostrand-XQZ-2000-A1 is not connected: check its "
                                               "cable and power, then open it"));
}

void OpenCloseTest::openingNothingFails()
{
    CPoolRig rig;
    rig.pool().control()->open({});
    QVERIFY(rig.waitFor(QStringLiteral("openFailed")));
    QCOMPARE(rig.lastFailure(), QStringLiteral("no camera is chosen: choose one, then open it"));
}

void OpenCloseTest::closeAllClosesEveryCameraAndEndsTheSearch()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    QVERIFY(startCamera(&scope, at("127.0.0.2", "B2")));
    CPoolRig rig;
    QVERIFY(rig.search());
    QVERIFY(rig.open(rig.camera(QStringLiteral("A1"))));
    QVERIFY(rig.open(rig.camera(QStringLiteral("B2"))));
    rig.clearLog();
    QVERIFY(rig.closeAll());
    QCOMPARE(rig.log().count(QStringLiteral("closing A1")), 1);
    QCOMPARE(rig.log().count(QStringLiteral("closing B2")), 1);
    QCOMPARE(rig.log().last(), QStringLiteral("allClosed"));
    QCOMPARE(rig.log().size(), 5);
}

void OpenCloseTest::openingAfterCloseAllFails()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    QVERIFY(rig.closeAll());
    QVERIFY(!rig.open(rig.camera(QStringLiteral("A1"))));
    QCOMPARE(rig.lastFailure(), QStringLiteral("Ostrand-XQZ-2000-A1 is not opened: the viewer is "
                                               "closing; start it again"));
}

void OpenCloseTest::stoppingThePoolClosesWhatIsOpen()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    QVERIFY(rig.open(rig.camera(QStringLiteral("A1"))));
    rig.pool().stop();
    QVERIFY(rig.waitFor(QStringLiteral("allClosed")));
    QCOMPARE(rig.log().count(QStringLiteral("closing A1")), 1);
}

void OpenCloseTest::cameraCanBeOpenedAgainAfterClosing()
{
    QObject scope;
    QVERIFY(startCamera(&scope, at("127.0.0.1", "A1")));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    for (int i = 0; i < 3; ++i) {
        QVERIFY(rig.open(camera));
        QVERIFY(rig.close(camera));
    }
    QCOMPARE(rig.log().count(QStringLiteral("connected A1")), 1);
}

void OpenCloseTest::nameThatTheUserGaveIsShownAndTheIdentityStays()
{
    QObject scope;
    QVERIFY(startCamera(
        &scope, at("127.0.0.1", "A1")
                    + QStringList{QStringLiteral("--user-name"), QStringLiteral("Left of belt")}));
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QCOMPARE(camera->displayName(), QStringLiteral("Left of belt"));
    QCOMPARE(camera->identity(), QStringLiteral("Ostrand-XQZ-2000-A1"));
}

// Who opened it under its old name has that description still; what a user reads has the new name.
void OpenCloseTest::newNameStandsInTheMessagesOfAnOpenCamera()
{
    QObject scope;
    auto *simulator = startCamera(&scope, at("127.0.0.1", "A1"));
    QVERIFY(simulator);
    CPoolRig rig;
    QVERIFY(rig.search());
    const auto camera = rig.camera(QStringLiteral("A1"));
    QVERIFY(rig.open(camera));
    QSignalSpy renamed(rig.pool().control().get(), &CCameraControl::renamed);
    rig.pool().devices()->device(camera)->call([](const CDeviceAccess &access) {
        CGError error;
        arv_device_set_string_feature_value(access.device(), "DeviceUserID", "Line3", error.out());
        access.check(error, QStringLiteral("the name is not set"));
    });
    QTRY_VERIFY_WITH_TIMEOUT(!renamed.isEmpty(), 30000); // it may have come already
    QCOMPARE(renamed.first().first().value<CPoolRig::CameraInfoPtr>()->displayName(),
             QStringLiteral("Line3"));
    QCOMPARE(rig.pool().control()->state(camera), CCameraControl::Open);

    rig.pool().control()->grabContinuous(camera);
    QVERIFY(rig.waitFor(QStringLiteral("grabStarted A1")));
    rig.pool().control()->grabContinuous(camera);
    QVERIFY(rig.waitFor(QStringLiteral("grabFailed A1")));
    QCOMPARE(rig.lastFailure(),
             QStringLiteral("Line3 is grabbing: stop that grab, then start another"));

    QTest::ignoreMessage(QtWarningMsg, "Line3 has stopped answering");
    QCOMPARE(simulator->command("vanish"), QStringLiteral("vanished"));
    QVERIFY(rig.waitFor(QStringLiteral("disconnected A1")));
    rig.pool().control()->open(camera);
    QVERIFY(rig.waitFor(QStringLiteral("openFailed A1")));
    QCOMPARE(rig.lastFailure(),
             QStringLiteral("Line3 is not connected: check its cable and power, then open it"));
}

QTEST_GUILESS_MAIN(OpenCloseTest)
#include "OpenCloseTest.moc"
