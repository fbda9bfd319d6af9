// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/grabbing/CGrabController.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"

#include <memory>

#include <QSignalSpy>
#include <QTest>

using CameraPool::ICameraControlService;
using Grabbing::CGrabController;

// What can be done with the selected camera, and its figures. There is no window.
class ControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testWhatCanBeDone_data();
    void testWhatCanBeDone();
    void testNothingCanBeDoneWithoutASelection();
    void testRequestsGoToTheSelectedCamera();
    void testWhatCannotBeDoneIsNotRequested();
    void testGrabThatIsRequestedIsNotRequestedAgainUntilItStarted();
    void testGrabThatIsRequestedCanBeStopped();
    void testGrabThatFailedCanBeRequestedAgain();
    void testCameraThatClosesMeanwhileCanGrabWhenItIsOpenAgain();
    void testEachChangeIsAnnounced();
    void testFiguresAreThoseOfTheSelectedCamera();
    void testFiguresBeginAnewWithEachGrab();
    void testFiguresTellWhetherTheGrabGoesOn();
    void testFiguresGoWhenTheCameraIsClosedOrGone();

private:
    CFakeCameraControl::CameraInfoPtr plugIn(const char *identity,
                                             ICameraControlService::CameraState state);
    void tellFigures(const CFakeCameraControl::CameraInfoPtr &camera, int images, int failures,
                     double fps, quint64 bps);

    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    QSharedPointer<CameraSelector::CDeviceSelectionService> m_selection;
    std::unique_ptr<CGrabController> m_controller;
    QStringList m_requests;
};

void ControllerTest::init()
{
    m_requests.clear();
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_selection = QSharedPointer<CameraSelector::CDeviceSelectionService>::create();
    m_control->onGrabRequest = [this](const QString &operation, const auto &camera) {
        m_requests.append(operation + u' ' + camera->identity());
    };
    m_controller = std::make_unique<CGrabController>(
        CGrabController::Services{m_control, m_status, m_selection});
}

CFakeCameraControl::CameraInfoPtr ControllerTest::plugIn(const char *identity,
                                                         ICameraControlService::CameraState state)
{
    const auto camera = m_control->plugIn(identity);
    m_control->setState(camera, state);
    return camera;
}

void ControllerTest::tellFigures(const CFakeCameraControl::CameraInfoPtr &camera, int images,
                                 int failures, double fps, quint64 bps)
{
    Q_EMIT m_status->cameraStatisticUpdated(camera, images, failures, fps, bps, {});
}

void ControllerTest::testWhatCanBeDone_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("canGrab");
    QTest::addColumn<bool>("canStop");

    QTest::newRow("a camera that is gone") << int(ICameraControlService::Gone) << false << false;
    QTest::newRow("a camera that is free") << int(ICameraControlService::Free) << false << false;
    QTest::newRow("a camera in use elsewhere")
        << int(ICameraControlService::InUseElsewhere) << false << false;
    QTest::newRow("a camera that is open can grab")
        << int(ICameraControlService::Open) << true << false;
    QTest::newRow("a camera that grabs can be stopped")
        << int(ICameraControlService::Grabbing) << false << true;
}

void ControllerTest::testWhatCanBeDone()
{
    QFETCH(int, state);
    m_selection->select(plugIn("A", ICameraControlService::CameraState(state)));
    QTEST(m_controller->canGrab(), "canGrab");
    QTEST(m_controller->canStop(), "canStop");
}

void ControllerTest::testNothingCanBeDoneWithoutASelection()
{
    plugIn("A", ICameraControlService::Open);
    QVERIFY(!m_controller->canGrab());
    QVERIFY(!m_controller->canStop());
    QVERIFY(!m_controller->figures());
    m_controller->grabSingle();
    m_controller->grabContinuous();
    m_controller->stop();
    QVERIFY(m_requests.isEmpty());
}

void ControllerTest::testRequestsGoToTheSelectedCamera()
{
    const auto open = plugIn("A", ICameraControlService::Open);
    m_selection->select(plugIn("B", ICameraControlService::Open));
    m_controller->grabSingle();
    m_selection->select(open);
    m_controller->grabContinuous();
    m_selection->select(plugIn("C", ICameraControlService::Grabbing));
    m_controller->stop();
    QCOMPARE(m_requests, (QStringList{"single B", "continuous A", "stop C"}));
}

void ControllerTest::testWhatCannotBeDoneIsNotRequested()
{
    m_selection->select(plugIn("A", ICameraControlService::Free));
    m_controller->grabSingle();
    m_controller->grabContinuous();
    m_controller->stop();
    QVERIFY(m_requests.isEmpty());
}

void ControllerTest::testGrabThatIsRequestedIsNotRequestedAgainUntilItStarted()
{
    const auto camera = plugIn("A", ICameraControlService::Open);
    m_selection->select(camera);
    m_controller->grabSingle();
    QVERIFY(!m_controller->canGrab());
    m_controller->grabSingle();
    m_controller->grabContinuous();
    QCOMPARE(m_requests, QStringList{"single A"});

    // It was so short that it is over when its start is heard of.
    Q_EMIT m_status->cameraGrabStarted(camera);
    QVERIFY(m_controller->canGrab());
}

void ControllerTest::testGrabThatIsRequestedCanBeStopped()
{
    m_selection->select(plugIn("A", ICameraControlService::Open));
    m_controller->grabContinuous();
    QVERIFY(m_controller->canStop());
    m_controller->stop();
    QCOMPARE(m_requests, (QStringList{"continuous A", "stop A"}));
}

void ControllerTest::testGrabThatFailedCanBeRequestedAgain()
{
    const auto camera = plugIn("A", ICameraControlService::Open);
    m_selection->select(camera);
    m_controller->grabSingle();
    Q_EMIT m_control->grabFailed(camera, "A cannot grab: close it, open it again");
    QVERIFY(m_controller->canGrab());
    QVERIFY(!m_controller->canStop());
}

void ControllerTest::testCameraThatClosesMeanwhileCanGrabWhenItIsOpenAgain()
{
    const auto camera = plugIn("A", ICameraControlService::Open);
    m_selection->select(camera);
    m_controller->grabSingle();
    Q_EMIT m_control->closed(camera);
    QVERIFY(m_controller->canGrab());
}

void ControllerTest::testEachChangeIsAnnounced()
{
    const auto camera = plugIn("A", ICameraControlService::Open);
    const QSignalSpy changed(m_controller.get(), &CGrabController::changed);
    m_selection->select(camera);
    QCOMPARE(changed.count(), 1);
    m_controller->grabContinuous();
    QCOMPARE(changed.count(), 2);
    Q_EMIT m_status->cameraGrabStarted(camera);
    QCOMPARE(changed.count(), 3);
    tellFigures(camera, 1, 0, 1.0, 1);
    QCOMPARE(changed.count(), 4);
    Q_EMIT m_status->cameraGrabStopped(camera);
    QCOMPARE(changed.count(), 5);
    Q_EMIT m_control->grabFailed(camera, "no");
    QCOMPARE(changed.count(), 6);
    Q_EMIT m_control->closed(camera);
    QCOMPARE(changed.count(), 7);
    Q_EMIT m_status->deviceDisconnected(camera);
    QCOMPARE(changed.count(), 8);
    Q_EMIT m_status->deviceOpened(camera);
    QCOMPARE(changed.count(), 9);
}

void ControllerTest::testFiguresAreThoseOfTheSelectedCamera()
{
    const auto first = plugIn("A", ICameraControlService::Grabbing);
    const auto second = plugIn("B", ICameraControlService::Grabbing);
    m_selection->select(first);
    QVERIFY(!m_controller->figures());
    tellFigures(first, 10, 1, 9.5, 1000);
    tellFigures(second, 20, 2, 19.5, 2000);

    QCOMPARE(m_controller->figures()->imagesGrabbed, 10);
    QCOMPARE(m_controller->figures()->imagesFailed, 1);
    QCOMPARE(m_controller->figures()->imagesPerSecond, 9.5);
    QCOMPARE(m_controller->figures()->bytesPerSecond, quint64(1000));
    m_selection->select(second);
    QCOMPARE(m_controller->figures()->imagesGrabbed, 20);
    tellFigures(second, 40, 3, 20.0, 2500);
    QCOMPARE(m_controller->figures()->imagesFailed, 3);
}

void ControllerTest::testFiguresBeginAnewWithEachGrab()
{
    const auto camera = plugIn("A", ICameraControlService::Grabbing);
    m_selection->select(camera);
    tellFigures(camera, 10, 1, 9.5, 1000);
    Q_EMIT m_status->cameraGrabStarted(camera);
    QCOMPARE(m_controller->figures()->imagesGrabbed, 0);
    QCOMPARE(m_controller->figures()->imagesFailed, 0);
}

void ControllerTest::testFiguresTellWhetherTheGrabGoesOn()
{
    const auto camera = plugIn("A", ICameraControlService::Grabbing);
    m_selection->select(camera);
    Q_EMIT m_status->cameraGrabStarted(camera);
    tellFigures(camera, 10, 1, 9.5, 1000);
    QVERIFY(m_controller->figures()->isRunning);
    Q_EMIT m_status->cameraGrabStopped(camera);
    QVERIFY(!m_controller->figures()->isRunning);
    QCOMPARE(m_controller->figures()->imagesGrabbed, 10);
    tellFigures(camera, 11, 1, 9.5, 1000); // late
    QVERIFY(!m_controller->figures()->isRunning);
}

void ControllerTest::testFiguresGoWhenTheCameraIsClosedOrGone()
{
    const auto camera = plugIn("A", ICameraControlService::Open);
    m_selection->select(camera);
    tellFigures(camera, 10, 1, 9.5, 1000);
    Q_EMIT m_control->closed(camera);
    QVERIFY(!m_controller->figures());
    tellFigures(camera, 10, 1, 9.5, 1000);
    Q_EMIT m_status->deviceDisconnected(camera);
    QVERIFY(!m_controller->figures());
}

QTEST_GUILESS_MAIN(ControllerTest)
#include "ControllerTest.moc"
