// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CPoolRig.h"
#include "CSimulatorProcess.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/camerapool/CDevice.h"
#include "plugins/camerapool/CDeviceStore.h"

#include <atomic>
#include <memory>
#include <vector>

#include <QMutex>
#include <QTest>
#include <QThread>

using namespace CameraPool;

// Grabs with simulated cameras: what is told, in which order, and what the counters say.
class GrabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void continuousGrabGivesImagesUntilItIsStopped();
    void singleGrabGivesOneImageAndStopsByItself();
    void pluginsHearOfEachImageWithoutItsPixels();
    void receiverThatStallsKeepsNoPixelsInMemory();
    void figuresAreToldEachSecondAndAtTheEnd();
    void countersAreThoseOfTheLastGrab();
    void countersAreReadableWhenTheEndIsToldAndAfterClosing();
    void lostPacketsArriveAsFailedResults();
    void secondGrabAtTheSameTimeIsRefused();
    void grabCanBeStartedInTheSlotThatHearsOfTheEnd();
    void continuousGrabCanBeStartedAndStoppedManyTimes();
    void grabOfAClosedCameraIsRefused();
    void stoppingACameraThatDoesNotGrabTellsNothing();
    void closingStopsTheGrabFirst();
    void grabOfACameraThatVanishesStopsBeforeItIsClosedAndDisconnected();
    void twoCamerasGrabAtOnce();
    void stateTellsOfTheGrab();

private:
    int logIndex(const char *line) const;

    const QString A1 = QStringLiteral("A1");
    std::unique_ptr<CSimulatorProcess> m_simulator;
    std::unique_ptr<CPoolRig> m_rig;
    CPoolRig::CameraInfoPtr m_camera;
};

namespace {

constexpr int TotalBuffers = 0;
constexpr int FailedBuffers = 1;
constexpr int TotalPackets = 2;
constexpr int FailedPackets = 5;
constexpr int MissedFrames = 6;
constexpr int Resynchronizations = 7;

} // namespace

void GrabTest::init()
{
    m_simulator = std::make_unique<CSimulatorProcess>(QStringList{QStringLiteral("--serial"), A1});
    QVERIFY2(m_simulator->start(), qPrintable(m_simulator->errorText()));
    m_rig = std::make_unique<CPoolRig>();
    QVERIFY(m_rig->search());
    m_camera = m_rig->camera(A1);
    QVERIFY(m_camera);
    QVERIFY(m_rig->open(m_camera));
    m_rig->clearLog();
}

void GrabTest::cleanup()
{
    m_camera.reset();
    m_rig.reset();
    m_simulator.reset();
}

int GrabTest::logIndex(const char *line) const
{
    return m_rig->log().indexOf(QString::fromLatin1(line));
}

void GrabTest::continuousGrabGivesImagesUntilItIsStopped()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForImages(A1, 10));
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(m_rig->log(),
             (QStringList{QStringLiteral("grabStarted A1"), QStringLiteral("grabStopped A1")}));
    for (const auto &result : m_rig->grabbed(A1).images) {
        QCOMPARE(result->image().width, 512);
        QCOMPARE(result->image().height, 512);
        QCOMPARE(result->image().pixelFormat, 17301505u);
        QCOMPARE(result->image().data.size(), std::size_t(512 * 512));
        QCOMPARE(result->GetErrorCode(), 0u);
    }
    QVERIFY(m_rig->grabbed(A1).failures.isEmpty());
}

void GrabTest::singleGrabGivesOneImageAndStopsByItself()
{
    m_rig->pool().control()->grabSingle(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(m_rig->grabbed(A1).images.size(), 1);
    QCOMPARE(m_rig->grabbed(A1).imagesGrabbed, 1);
    QCOMPARE(m_rig->grabbed(A1).imagesFailed, 0);
}

void GrabTest::pluginsHearOfEachImageWithoutItsPixels()
{
    QList<Nerix::CGrabResultPtr> heard;
    connect(m_rig->pool().status().get(), &CCameraStatus::cameraImageGrabbed, m_rig.get(),
            [&heard](const CPoolRig::CameraInfoPtr &, const Nerix::CGrabResultPtr &result) {
                heard.append(result);
            });
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForImages(A1, 10));
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));

    QCOMPARE(heard.size(), m_rig->grabbed(A1).images.size());
    for (const auto &result : heard) {
        QVERIFY(result->GrabSucceeded());
        QCOMPARE(result->image().width, 512);
        QCOMPARE(result->image().height, 512);
        QCOMPARE(result->image().pixelFormat, 17301505u);
        QVERIFY(result->image().data.empty());
    }
}

// The receiver's thread does not run, so that the news of every image wait in its queue.
void GrabTest::receiverThatStallsKeepsNoPixelsInMemory()
{
    QThread stalledThread;
    auto receiver = std::make_unique<QObject>();
    receiver->moveToThread(&stalledThread);
    std::atomic<int> heard{0};
    connect(m_rig->pool().status().get(), &CCameraStatus::cameraImageGrabbed, receiver.get(),
            [&heard] { ++heard; });
    QMutex mutex;
    std::vector<std::weak_ptr<const Nerix::CGrabResultData>> images;
    QObject::disconnect(m_rig->pool().images().get(), nullptr, m_rig.get(), nullptr);
    connect(
        m_rig->pool().images().get(), &CImageNews::resultArrived, m_rig.get(),
        [&](const CPoolRig::CameraInfoPtr &, const Nerix::CGrabResultPtr &result) {
            const QMutexLocker lock(&mutex);
            images.push_back(result);
        },
        Qt::DirectConnection);
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(QTest::qWaitFor(
        [&] {
            const QMutexLocker lock(&mutex);
            return images.size() >= 20;
        },
        30000));
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));

    QCOMPARE(heard.load(), 0);
    for (const auto &image : images) {
        QVERIFY(image.expired());
    }
    QMetaObject::invokeMethod(
        receiver.get(), [&stalledThread] { stalledThread.quit(); }, Qt::QueuedConnection);
    stalledThread.start();
    QVERIFY(stalledThread.wait());
    QCOMPARE(heard.load(), int(images.size()));
}

void GrabTest::figuresAreToldEachSecondAndAtTheEnd()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(QTest::qWaitFor([&] { return m_rig->grabbed(A1).figureCount == 2; }, 30000));
    QVERIFY(m_rig->grabbed(A1).fps > 1.0);
    QVERIFY(m_rig->grabbed(A1).bps > 262144);
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    const auto &grabbed = m_rig->grabbed(A1);
    QVERIFY(grabbed.figureCount >= 3);
    QCOMPARE(grabbed.imagesGrabbed, grabbed.images.size());
    QCOMPARE(grabbed.imagesFailed, grabbed.failures.size());
}

void GrabTest::countersAreThoseOfTheLastGrab()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForImages(A1, 20));
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    m_rig->clearGrabbed();
    m_rig->pool().control()->grabSingle(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1"), 2));
    const CStreamCounters counters = m_rig->pool().devices()->device(m_camera)->counters();
    QVERIFY(*counters.at(TotalBuffers) >= 1);
    QVERIFY(*counters.at(TotalBuffers) < 20);
}

void GrabTest::countersAreReadableWhenTheEndIsToldAndAfterClosing()
{
    const auto device = m_rig->pool().devices()->device(m_camera);
    CStreamCounters atTheEnd;
    connect(m_rig->pool().status().get(), &CCameraStatus::cameraGrabStopped, m_rig.get(),
            [&] { atTheEnd = device->counters(); });
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForImages(A1, 5));
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(*atTheEnd.at(TotalBuffers),
             qint64(m_rig->grabbed(A1).images.size()) + *atTheEnd.at(FailedBuffers));
    QVERIFY(*atTheEnd.at(TotalPackets) >= 5 * 188);
    QCOMPARE(*atTheEnd.at(FailedPackets), 0);
    QCOMPARE(*atTheEnd.at(MissedFrames), 0);
    QVERIFY(!atTheEnd.at(Resynchronizations));
    QVERIFY(m_rig->close(m_camera));
    QCOMPARE(*device->counters().at(TotalBuffers), *atTheEnd.at(TotalBuffers));
}

void GrabTest::lostPacketsArriveAsFailedResults()
{
    QCOMPARE(m_simulator->command(QStringLiteral("loss 0.02")), QStringLiteral("loss 0.02"));
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForFailures(A1, 5));
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    const auto &grabbed = m_rig->grabbed(A1);
    for (const auto &result : grabbed.failures) {
        QVERIFY(!result->GrabSucceeded());
        QVERIFY(result->image().data.empty());
        QVERIFY(result->GetErrorCode() == 0x0A000003u || result->GetErrorCode() == 0x0A000004u);
        QVERIFY(qstrlen(result->GetErrorDescription().c_str()) > 0);
    }
    QCOMPARE(grabbed.imagesFailed, grabbed.failures.size());
    const CStreamCounters counters = m_rig->pool().devices()->device(m_camera)->counters();
    QVERIFY(*counters.at(FailedBuffers) >= grabbed.failures.size());
    QVERIFY(*counters.at(FailedPackets) > 0);
}

void GrabTest::secondGrabAtTheSameTimeIsRefused()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    m_rig->pool().control()->grabSingle(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabFailed A1")));
    QCOMPARE(m_rig->lastFailure(),
             QStringLiteral("Ostrand-XQZ-2000-A1 is grabbing: stop that grab, "
                            "then start another"));
    QVERIFY(m_rig->waitForImages(A1, 3));
}

void GrabTest::grabCanBeStartedInTheSlotThatHearsOfTheEnd()
{
    int starts = 1;
    connect(
        m_rig->pool().status().get(), &CCameraStatus::cameraGrabStopped, m_rig.get(),
        [&] {
            if (++starts <= 10) {
                m_rig->pool().control()->grabSingle(m_camera);
            }
        },
        Qt::DirectConnection);
    m_rig->pool().control()->grabSingle(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1"), 10));
    QStringList expected;
    for (int i = 0; i < 10; ++i) {
        expected += {QStringLiteral("grabStarted A1"), QStringLiteral("grabStopped A1")};
    }
    QCOMPARE(m_rig->log(), expected);
}

void GrabTest::continuousGrabCanBeStartedAndStoppedManyTimes()
{
    for (int i = 1; i <= 10; ++i) {
        m_rig->clearGrabbed();
        m_rig->pool().control()->grabContinuous(m_camera);
        QVERIFY(m_rig->waitForImages(A1, 2));
        m_rig->pool().control()->stopGrab(m_camera);
        QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1"), i));
        const CStreamCounters counters = m_rig->pool().devices()->device(m_camera)->counters();
        QCOMPARE(*counters.at(TotalBuffers) - *counters.at(FailedBuffers),
                 qint64(m_rig->grabbed(A1).images.size()));
        QCOMPARE(m_rig->grabbed(A1).imagesGrabbed, m_rig->grabbed(A1).images.size());
    }
}

void GrabTest::grabOfAClosedCameraIsRefused()
{
    QVERIFY(m_rig->close(m_camera));
    m_rig->pool().control()->grabSingle(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabFailed A1")));
    QCOMPARE(m_rig->lastFailure(),
             QStringLiteral("Ostrand-XQZ-2000-A1 is not open: open it, then grab"));
}

void GrabTest::stoppingACameraThatDoesNotGrabTellsNothing()
{
    m_rig->pool().control()->stopGrab(m_camera);
    QVERIFY(m_rig->close(m_camera));
    QCOMPARE(logIndex("grabStopped A1"), -1);
}

void GrabTest::closingStopsTheGrabFirst()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForImages(A1, 3));
    QVERIFY(m_rig->close(m_camera));
    QCOMPARE(m_rig->log(),
             (QStringList{QStringLiteral("grabStarted A1"), QStringLiteral("grabStopped A1"),
                          QStringLiteral("closing A1"), QStringLiteral("closed A1")}));
}

void GrabTest::grabOfACameraThatVanishesStopsBeforeItIsClosedAndDisconnected()
{
    m_rig->pool().control()->grabContinuous(m_camera);
    QVERIFY(m_rig->waitForImages(A1, 3));
    m_simulator->kill();
    QVERIFY(m_rig->waitFor(QStringLiteral("enumeration")));
    QCOMPARE(m_rig->log(),
             (QStringList{QStringLiteral("grabStarted A1"), QStringLiteral("grabStopped A1"),
                          QStringLiteral("closing A1"), QStringLiteral("closed A1"),
                          QStringLiteral("disconnected A1"), QStringLiteral("enumeration")}));
    QCOMPARE(m_rig->grabbed(A1).imagesGrabbed, m_rig->grabbed(A1).images.size());

    QVERIFY(m_simulator->start());
    QVERIFY(m_rig->waitFor(QStringLiteral("connected A1")));
    QVERIFY(m_rig->open(m_camera));
    m_rig->clearGrabbed();
    m_rig->pool().control()->grabSingle(m_camera);
    QVERIFY2(m_rig->waitForImages(A1, 1),
             qPrintable(m_rig->log().join(u' ') + m_rig->lastFailure()));
}

void GrabTest::twoCamerasGrabAtOnce()
{
    const QString B2 = QStringLiteral("B2");
    CSimulatorProcess other(
        {QStringLiteral("--address"), QStringLiteral("127.0.0.2"), QStringLiteral("--serial"), B2});
    QVERIFY(other.start());
    QVERIFY(m_rig->waitFor(QStringLiteral("connected B2")));
    const auto camera = m_rig->camera(B2);
    QVERIFY(m_rig->open(camera));
    m_rig->pool().control()->grabContinuous(m_camera);
    m_rig->pool().control()->grabContinuous(camera);
    QVERIFY(m_rig->waitForImages(A1, 10));
    QVERIFY(m_rig->waitForImages(B2, 10));
    m_rig->pool().control()->stopGrab(m_camera);
    m_rig->pool().control()->stopGrab(camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped B2")));
    QCOMPARE(m_rig->grabbed(B2).imagesGrabbed, m_rig->grabbed(B2).images.size());
}

void GrabTest::stateTellsOfTheGrab()
{
    const auto control = m_rig->pool().control();
    QList<int> states;
    const auto noteState = [&] { states.append(control->state(m_camera)); };
    const auto status = m_rig->pool().status();
    connect(status.get(), &CCameraStatus::cameraGrabStarted, m_rig.get(), noteState,
            Qt::DirectConnection);
    connect(status.get(), &CCameraStatus::cameraGrabStopped, m_rig.get(), noteState,
            Qt::DirectConnection);
    control->grabSingle(m_camera);
    QVERIFY(m_rig->waitFor(QStringLiteral("grabStopped A1")));
    QCOMPARE(states, (QList<int>{ICameraControlService::Grabbing, ICameraControlService::Open}));
}

QTEST_GUILESS_MAIN(GrabTest)
#include "GrabTest.moc"
