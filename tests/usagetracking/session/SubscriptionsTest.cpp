// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the provider connects to, in which order and how.

#include "CatchingApplication.h"
#include "HostJournal.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <memory>

#include <QSemaphore>

using CameraPool::ICameraEnumerationService;
using CameraPool::ICameraStatusService;
using CameraPool::IDeviceStatusService;
using CameraSelector::IDeviceSelectorService;
using FeatureTree::IFeatureTreeStatusService;

namespace {

/// A provider at a host with two feature trees, and a journal of what it connects to.
class Subscriptions
{
public:
    Subscriptions()
    {
        tracking.host.addService(secondTree);
        const auto parameters = QSharedPointer<FakeParameterCollection>::create();
        parameters->add<FakeEnumeration>("@CameraDevice/AcquisitionMode");
        tracking.host.parameterService->collections.insert(camera.data(), parameters);
        tracking.inTrackingThread([this] { tracking.provider->acquireServices(&tracking.host); });
        listen(*tracking.host.featureTree, "tree 1");
        listen(*secondTree, "tree 2");
        listen(*tracking.host.deviceSelector, "selector");
        listen(*tracking.host.cameraStatus, "cameras");
        listen(*tracking.host.enumeration, "enumeration");
    }

    /// The provider notes its end in the journal too, behind what was taken from it here.
    ~Subscriptions()
    {
        tracking.settle();
    }

    Q_DISABLE_COPY_MOVE(Subscriptions)

    /// The receivers of every signal, in the order of `everySignal`.
    QList<int> receiverCounts() const
    {
        const auto &cameras = *tracking.host.cameraStatus;
        return {
            tracking.host.featureTree->receiverCount(&IFeatureTreeStatusService::currentChanged),
            secondTree->receiverCount(&IFeatureTreeStatusService::currentChanged),
            tracking.host.deviceSelector->receiverCount(&IDeviceSelectorService::selectionChanged),
            cameras.receiverCount(&ICameraStatusService::deviceConnected),
            cameras.receiverCount(&ICameraStatusService::deviceDisconnected),
            tracking.host.enumeration->receiverCount(
                &ICameraEnumerationService::enumerationChanged),
            cameras.receiverCount(&IDeviceStatusService::deviceOpened),
            cameras.receiverCount(&IDeviceStatusService::deviceClosing),
            cameras.receiverCount(&ICameraStatusService::cameraGrabStarted),
            cameras.receiverCount(&ICameraStatusService::cameraGrabStopped),
            cameras.receiverCount(&ICameraStatusService::cameraImageGrabbed),
            cameras.receiverCount(&ICameraStatusService::cameraStatisticUpdated),
        };
    }

    /// Emits \a signal once, with a camera that notes in the journal what it is asked.
    void emitSignal(const QString &signal)
    {
        auto &cameras = *tracking.host.cameraStatus;
        const QMap<QString, std::function<void()>> emissions{
            {"currentChanged", [&] { Q_EMIT tracking.host.featureTree->currentChanged(gain); }},
            {"currentChanged of the second tree", [&] { Q_EMIT secondTree->currentChanged(gain); }},
            {"selectionChanged",
             [&] { Q_EMIT tracking.host.deviceSelector->selectionChanged(camera); }},
            {"deviceConnected", [&] { Q_EMIT cameras.deviceConnected(camera); }},
            {"deviceDisconnected", [&] { Q_EMIT cameras.deviceDisconnected(camera); }},
            {"enumerationChanged", [&] { Q_EMIT tracking.host.enumeration->enumerationChanged(); }},
            {"deviceOpened", [&] { Q_EMIT cameras.deviceOpened(camera); }},
            {"cameraGrabStarted", [&] { Q_EMIT cameras.cameraGrabStarted(camera); }},
            {"cameraGrabStopped", [&] { Q_EMIT cameras.cameraGrabStopped(camera); }},
            {"cameraImageGrabbed", [&] { Q_EMIT cameras.cameraImageGrabbed(camera, failure); }},
            {"cameraStatisticUpdated",
             [&] {
                 Q_EMIT cameras.cameraStatisticUpdated(camera, 1, 2, 3.0, 4,
                                                       CCompressionStatistic());
             }},
        };
        QVERIFY(emissions.contains(signal));
        emissions.value(signal)();
    }

    // First, since the services still note in it when the provider goes.
    HostJournal journal;
    QSharedPointer<FakeFeatureTreeService> secondTree =
        QSharedPointer<FakeFeatureTreeService>::create();
    QSharedPointer<JournallingCamera> camera = QSharedPointer<JournallingCamera>::create(journal);
    QSharedPointer<FakeInteger> gain =
        QSharedPointer<FakeInteger>::create(QStringLiteral("@CameraDevice/Gain"));
    Nerix::CGrabResultPtr failure = std::make_shared<Nerix::CGrabResultData>(7U, "...");
    TrackingFixture tracking;

private:
    template <class Service>
    void listen(Service &service, const char *name)
    {
        const QString of = QStringLiteral(" of ") + QLatin1String(name);
        service.onConnected = [this, of](const QString &signal) {
            journal.ask(QStringLiteral("connect ") + signal + of);
        };
        service.onDisconnected = [this, of](const QString &signal) {
            journal.ask(QStringLiteral("disconnect ") + signal + of);
        };
    }
};

void addAutomaticSignals()
{
    QTest::addColumn<QString>("signal");
    for (const char *signal :
         {"currentChanged", "currentChanged of the second tree", "selectionChanged",
          "deviceConnected", "deviceDisconnected", "enumerationChanged", "deviceOpened",
          "cameraGrabStarted", "cameraGrabStopped", "cameraImageGrabbed",
          "cameraStatisticUpdated"}) {
        QTest::newRow(signal) << signal;
    }
}

} // namespace

class SubscriptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void startConnectsInOrderAndThenTellsTheStart()
    {
        Subscriptions s;
        s.tracking.start();
        QCOMPARE(
            s.journal.take(),
            QStringList(
                {"ruiCreateInstance", "ruiCreateConfig", "ruiSetProductData", "ruiStartSDK",
                 "connect currentChanged of tree 1", "connect currentChanged of tree 2",
                 "connect selectionChanged of selector", "connect deviceConnected of cameras",
                 "connect deviceDisconnected of cameras",
                 "connect enumerationChanged of enumeration", "connect deviceOpened of cameras",
                 "connect deviceClosing of cameras", "connect cameraGrabStarted of cameras",
                 "connect cameraGrabStopped of cameras", "connect cameraImageGrabbed of cameras",
                 "connect cameraStatisticUpdated of cameras", "send SessionStarted"}));
    }

    void stopClosesTheSessionBeforeItDisconnects()
    {
        Subscriptions s;
        s.tracking.start();
        s.journal.take();
        s.tracking.stop();
        const QStringList entries = s.journal.take();
        QCOMPARE(entries.mid(0, 3),
                 QStringList({"send SessionEnded", "ruiStopSDK", "ruiDestroyInstance"}));
        QStringList disconnected = entries.mid(3);
        disconnected.sort();
        QCOMPARE(
            disconnected,
            QStringList(
                {"disconnect cameraGrabStarted of cameras",
                 "disconnect cameraGrabStopped of cameras",
                 "disconnect cameraImageGrabbed of cameras",
                 "disconnect cameraStatisticUpdated of cameras",
                 "disconnect currentChanged of tree 1", "disconnect currentChanged of tree 2",
                 "disconnect deviceClosing of cameras", "disconnect deviceConnected of cameras",
                 "disconnect deviceDisconnected of cameras", "disconnect deviceOpened of cameras",
                 "disconnect enumerationChanged of enumeration",
                 "disconnect selectionChanged of selector"}));
    }

    void everySignalHasOneReceiverWhileTracking()
    {
        Subscriptions s;
        s.tracking.start();
        QCOMPARE(s.receiverCounts(), QList<int>({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
        s.tracking.stop();
        QCOMPARE(s.receiverCounts(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    }

    void noConnectionIsUnique()
    {
        Subscriptions s;
        s.tracking.start();
        s.tracking.start();
        QCOMPARE(s.receiverCounts(), QList<int>({2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2}));
        s.tracking.stop();
        QCOMPARE(s.receiverCounts(), QList<int>({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    }

    void stopWithoutASessionKeepsTheSubscriptionsOfAnEarlierStart_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::newRow("stop") << QByteArray("stopTracking");
        QTest::newRow("opt-out") << QByteArray("stopTrackingAndOptOut");
    }

    void stopWithoutASessionKeepsTheSubscriptionsOfAnEarlierStart()
    {
        QFETCH(QByteArray, request);
        Subscriptions s;
        s.tracking.start();
        // The second start fails and so leaves no session, but what the first one subscribed.
        s.tracking.analytics.setResult(QStringLiteral("ruiStartSDK"), 5);
        s.tracking.start();
        s.journal.take();
        QMetaObject::invokeMethod(s.tracking.provider, request.constData(),
                                  Qt::BlockingQueuedConnection);
        QCOMPARE(s.journal.take(), QStringList());
        QCOMPARE(s.receiverCounts(), QList<int>({1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
    }

    void initialCameraCountDisconnectsBeforeItSends()
    {
        Subscriptions s;
        s.tracking.start();
        s.journal.take();
        s.tracking.emitFromHost([&] { s.emitSignal("enumerationChanged"); });
        QCOMPARE(s.journal.take(), QStringList({"disconnect enumerationChanged of enumeration",
                                                "send InitialCameraCount"}));
        QCOMPARE(s.receiverCounts(), QList<int>({1, 1, 1, 1, 1, 0, 1, 1, 1, 1, 1, 1}));
    }

    void signalOfTheTrackingThreadIsHeardAtOnce_data()
    {
        addAutomaticSignals();
    }

    void signalOfTheTrackingThreadIsHeardAtOnce()
    {
        QFETCH(QString, signal);
        Subscriptions s;
        s.tracking.start();
        s.journal.take();
        QStringList heard;
        s.tracking.inTrackingThread([&] {
            s.emitSignal(signal);
            heard = s.journal.take();
        });
        QVERIFY2(!heard.isEmpty(), "the slot was queued");
    }

    void signalOfAnotherThreadIsQueuedAndDoesNotWait_data()
    {
        addAutomaticSignals();
    }

    void signalOfAnotherThreadIsQueuedAndDoesNotWait()
    {
        QFETCH(QString, signal);
        Subscriptions s;
        s.tracking.start();
        s.journal.take();
        QSemaphore busy;
        QMetaObject::invokeMethod(
            s.tracking.provider, [&] { busy.acquire(); }, Qt::QueuedConnection);
        QSemaphore emitted;
        s.tracking.host.startInCameraThread([&] {
            s.emitSignal(signal);
            emitted.release();
        });
        const bool returned = emitted.tryAcquire(1, 10000);
        const QStringList heardWhileBusy = s.journal.take();
        busy.release();
        QVERIFY2(returned, "the emitter waited");
        QCOMPARE(heardWhileBusy, QStringList());
        s.tracking.settle();
        QVERIFY2(!s.journal.take().isEmpty(), "the slot never ran");
    }

    void deviceClosingIsHeardInTheTrackingThreadWhileItsEmitterWaits()
    {
        Subscriptions s;
        s.tracking.start();
        s.tracking.analytics.takeCalls();
        QList<RecordedCall> whenReturned;
        s.tracking.host.inCameraThread([&] {
            Q_EMIT s.tracking.host.cameraStatus->deviceClosing(s.camera);
            whenReturned = s.tracking.analytics.recorded();
        });
        // Asking the camera moved what was sent before into the journal; the event is the rest.
        QCOMPARE(whenReturned.size(), 1);
        QVERIFY(whenReturned.at(0).text.contains(QLatin1String("\"EventName\":\"Closed\"")));
        QCOMPARE(whenReturned.at(0).thread, &s.tracking.trackingThread);
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, SubscriptionsTest)
#include "SubscriptionsTest.moc"
