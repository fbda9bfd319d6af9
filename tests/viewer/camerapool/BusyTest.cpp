// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CHeldSearch.h"
#include "CPoolRig.h"
#include "CSimulatorProcess.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/camerapool/CDevice.h"
#include "plugins/camerapool/CDeviceStore.h"

#include <memory>

#include <QSemaphore>
#include <QTest>
#include <QTimer>

using namespace CameraPool;

// What is asked of the pool while a search lasts, or while the pool's thread waits for another
// camera.
class BusyTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void grabStopsWhileASearchLasts();
    void camerasAreOpenedGrabbedAndClosedWhileASearchLasts();
    void camerasAreClosedWhileASearchLastsButThePoolEndsAfterIt();
    void searchThatEndsAfterCloseAllTellsNothing();
    void closingDuringASearchIsNotTakenBackByIt();
    void lossDuringASearchIsNotTakenBackByIt();
    void searchesGoOnAfterOneThatLasted();
    void grabStopsWhileThePoolsThreadWaits();
    void stopRightBehindAStartStopsThatGrab();
    void stopBehindAStartThatIsRefusedStopsTheGrabAfterTheRefusal();
    void startAfterAStopMakesAGrabThatGoesOn();
    void stopOfACameraThatIsJustBeingLostKeepsTheOrder();

private:
    bool openCamera();
    bool grab();
    void holdThePoolsThread();

    const QString A1 = QStringLiteral("A1");
    std::unique_ptr<CSimulatorProcess> m_simulator;
    std::unique_ptr<CPoolRig> m_rig;
    std::unique_ptr<CHeldSearch::CHold> m_search; // ends before the rig, which waits for it else
    CPoolRig::CameraInfoPtr m_camera;
    QSemaphore m_thread; // what holds the pool's thread
};

namespace {

QStringList lines(std::initializer_list<const char *> words)
{
    QStringList result;
    for (const char *word : words) {
        result.append(QString::fromLatin1(word));
    }
    return result;
}

} // namespace

void BusyTest::init()
{
    m_simulator = std::make_unique<CSimulatorProcess>(QStringList{QStringLiteral("--serial"), A1});
    QVERIFY2(m_simulator->start(), qPrintable(m_simulator->errorText()));
    m_search = std::make_unique<CHeldSearch::CHold>();
    m_rig = std::make_unique<CPoolRig>(m_search->createSearch(), CPoolRig::shortTiming());
    QVERIFY(m_rig->search());
    m_camera = m_rig->camera(A1);
    QVERIFY(m_camera);
    m_rig->clearLog();
}

void BusyTest::cleanup()
{
    m_camera.reset();
    m_thread.release();
    m_search.reset();
    m_rig.reset();
    m_simulator.reset();
    m_thread.acquire(m_thread.available());
}

bool BusyTest::openCamera()
{
    const bool isOpen = m_rig->open(m_camera);
    m_rig->clearLog();
    return isOpen;
}

bool BusyTest::grab()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    return m_rig->waitForImages(A1, 3);
}

// In a slot that the pool's thread calls, as a plug-in's may be that does not return.
void BusyTest::holdThePoolsThread()
{
    QSemaphore isHeld;
    const auto connection = connect(
        m_rig->pool().control().get(), &CCameraControl::openFailed, m_rig.get(),
        [&] {
            isHeld.release();
            m_thread.acquire();
        },
        Qt::DirectConnection);
    m_rig->pool().control()->open({});
    isHeld.acquire();
    disconnect(connection);
}

void BusyTest::grabStopsWhileASearchLasts()
{
    QVERIFY(openCamera());
    QVERIFY(grab());
    QVERIFY(m_search->hold());
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
}

void BusyTest::camerasAreOpenedGrabbedAndClosedWhileASearchLasts()
{
    QVERIFY(m_search->hold());
    QVERIFY(m_rig->open(m_camera));
    QVERIFY(grab());
    QVERIFY(m_rig->close(m_camera));
    QVERIFY(m_rig->closeAll());
    QCOMPARE(m_rig->log(), lines({"opened A1", "grabStarted A1", "grabStopped A1", "closing A1",
                                  "closed A1", "allClosed"}));
}

void BusyTest::camerasAreClosedWhileASearchLastsButThePoolEndsAfterIt()
{
    QVERIFY(openCamera());
    QVERIFY(m_search->hold());
    QVERIFY(m_rig->closeAll());
    // Comes only if the event loop runs while the end is waited for.
    QTimer::singleShot(0, m_rig.get(), [this] { m_search->letGo(); });
    m_rig->pool().stop();
    QVERIFY(!m_search->isSearching());
}

void BusyTest::searchThatEndsAfterCloseAllTellsNothing()
{
    QVERIFY(m_search->hold());
    CSimulatorProcess other({QStringLiteral("--address"), QStringLiteral("127.0.0.2"),
                             QStringLiteral("--serial"), QStringLiteral("B2")});
    QVERIFY(other.start());
    QVERIFY(m_search->holdTheNext());
    QVERIFY(m_rig->closeAll());
    m_search->letGo();
    m_rig->pool().stop();
    QCoreApplication::processEvents();
    QCOMPARE(m_rig->log().last(), QStringLiteral("allClosed"));
}

// It was asked while it was open, and told that somebody controls it.
void BusyTest::closingDuringASearchIsNotTakenBackByIt()
{
    QVERIFY(openCamera());
    QVERIFY(m_search->hold());
    QVERIFY(m_rig->close(m_camera));
    QVERIFY(m_search->holdTheNext());
    QCOMPARE(m_rig->pool().control()->state(m_camera), ICameraControlService::Free);
}

// It had answered before. It is found again by the next search, once its connection is given back.
void BusyTest::lossDuringASearchIsNotTakenBackByIt()
{
    QVERIFY(openCamera());
    QVERIFY(m_search->hold());
    QTest::ignoreMessage(QtWarningMsg, "Ostrand-XQZ-2000-A1 has stopped answering");
    m_rig->pool().devices()->device(m_camera)->markLost();
    QVERIFY(m_rig->waitFor(QStringLiteral("disconnected A1")));
    CPoolRig otherProgram; // which sees that the connection is given back
    QVERIFY(otherProgram.search());
    QVERIFY(QTest::qWaitFor(
        [&] {
            return otherProgram.pool().control()->state(m_camera) == ICameraControlService::Free;
        },
        30000));
    QVERIFY(m_search->holdTheNext());
    QCoreApplication::processEvents();
    QCOMPARE(m_rig->log(), lines({"closing A1", "closed A1", "disconnected A1", "enumeration"}));
    m_search->letGo();
    QVERIFY(m_rig->waitFor(QStringLiteral("connected A1")));
}

void BusyTest::searchesGoOnAfterOneThatLasted()
{
    QVERIFY(m_search->hold());
    CSimulatorProcess other({QStringLiteral("--address"), QStringLiteral("127.0.0.2"),
                             QStringLiteral("--serial"), QStringLiteral("B2")});
    QVERIFY(other.start());
    m_search->letGo();
    QVERIFY(m_rig->waitFor(QStringLiteral("connected B2")));
}

void BusyTest::grabStopsWhileThePoolsThreadWaits()
{
    QVERIFY(openCamera());
    QVERIFY(grab());
    holdThePoolsThread();
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(m_rig->pool().control()->state(m_camera), ICameraControlService::Open);
}

void BusyTest::stopRightBehindAStartStopsThatGrab()
{
    QVERIFY(openCamera());
    holdThePoolsThread();
    m_rig->pool().control()->grabContinuous(m_camera);
    m_rig->pool().control()->stopGrab(m_camera);
    m_thread.release();
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(m_rig->log(), lines({"openFailed", "grabStarted A1", "grabStopped A1"}));
}

void BusyTest::stopBehindAStartThatIsRefusedStopsTheGrabAfterTheRefusal()
{
    QVERIFY(openCamera());
    QVERIFY(grab());
    holdThePoolsThread();
    m_rig->pool().control()->grabSingle(m_camera);
    m_rig->pool().control()->stopGrab(m_camera);
    m_rig->clearGrabbed();
    QVERIFY(m_rig->waitForImages(A1, 20)); // it goes on until the refusal
    m_thread.release();
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(m_rig->log(),
             lines({"grabStarted A1", "openFailed", "grabFailed A1", "grabStopped A1"}));
}

// The stop is for the grab that is there; the one that is asked for when that has ended goes on.
void BusyTest::startAfterAStopMakesAGrabThatGoesOn()
{
    QVERIFY(openCamera());
    QVERIFY(grab());
    holdThePoolsThread();
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    m_rig->pool().control()->grabContinuous(m_camera);
    m_rig->clearGrabbed();
    m_thread.release();
    QVERIFY(m_rig->waitForImages(A1, 20));
    QCOMPARE(m_rig->log(),
             lines({"grabStarted A1", "openFailed", "grabStopped A1", "grabStarted A1"}));
}

void BusyTest::stopOfACameraThatIsJustBeingLostKeepsTheOrder()
{
    QVERIFY(openCamera());
    QVERIFY(grab());
    QVERIFY(m_search->hold());
    m_simulator->kill();
    m_rig->pool().control()->stopGrab(m_camera);
    m_search->letGo();
    QVERIFY(m_rig->waitFor(QStringLiteral("enumeration")));
    QCOMPARE(m_rig->log(), lines({"grabStarted A1", "grabStopped A1", "closing A1", "closed A1",
                                  "disconnected A1", "enumeration"}));
}

QTEST_GUILESS_MAIN(BusyTest)
#include "BusyTest.moc"
