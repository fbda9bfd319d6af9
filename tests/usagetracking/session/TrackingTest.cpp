// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What is heard while tracking, and the events of a session.

#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <QSemaphore>

namespace {

QString ended(int finalCount, int usedCount)
{
    return QStringLiteral("{\"EventCategory\":\"GeneralEvent\",\"EventName\":\"SessionEnded\","
                          "\"FinalCameraCount\":%1,\"TotalUsedCameraCount\":%2}")
        .arg(finalCount)
        .arg(usedCount);
}

QStringList initialCameraCount(int count)
{
    return {QStringLiteral("ruiTrackEventText(#1 | GeneralEvent | InitialCameraCount | "
                           "{\"EventCategory\":\"GeneralEvent\","
                           "\"EventName\":\"InitialCameraCount\",\"InitialCameraCount\":%1} | )")
                .arg(count)};
}

} // namespace

class TrackingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsHeardBeforeTheStartAndAfterTheStop()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        const auto everySignal = [&] {
            Q_EMIT f.host.cameraStatus->deviceConnected(camera);
            Q_EMIT f.host.enumeration->enumerationChanged();
            Q_EMIT f.host.cameraStatus->deviceOpened(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(camera);
        };
        QCOMPARE(f.callsFor(everySignal), QStringList());
        f.start();
        f.stop();
        QCOMPARE(f.callsFor(everySignal), QStringList());
    }

    void everyFeatureTreeIsHeard()
    {
        const auto second = QSharedPointer<FakeFeatureTreeService>::create();
        TrackingFixture f;
        f.host.addService(second);
        f.inTrackingThread([&] { f.provider->acquireServices(&f.host); });
        f.startQuietly();
        const auto gain = QSharedPointer<FakeInteger>::create(QStringLiteral("@CameraDevice/Gain"));
        const QStringList chosen{
            QStringLiteral("ruiTrackEventText(#1 | FeatureChosen | Gain | "
                           R"({"EventCategory":"FeatureChosen","EventName":"Gain"} | ))")};
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.featureTree->currentChanged(gain); }), chosen);
        QCOMPARE(f.callsFor([&] { Q_EMIT second->currentChanged(gain); }), chosen);
    }

    void deviceClosingBlocksTheEmitterUntilTheDeviceWasRead()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        f.startQuietly();
        // The tracking thread is busy, so the slot cannot have run before it is released.
        QSemaphore release;
        QMetaObject::invokeMethod(
            f.provider, [&] { release.acquire(); }, Qt::QueuedConnection);
        QSemaphore returned;
        QStringList seenOnReturn;
        f.host.startInCameraThread([&] {
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            seenOnReturn = f.analytics.calls();
            returned.release();
        });
        release.release();
        returned.acquire();
        QCOMPARE(f.host.parametersOf(camera)->streamsRead,
                 QList<QString>{QStringLiteral("@CameraDevice")});
        QCOMPARE(seenOnReturn.size(), 1);
        QVERIFY(seenOnReturn.at(0).contains(QLatin1String("\"EventName\":\"Closed\"")));
    }

    void initialCameraCountIsSentOncePerSession()
    {
        TrackingFixture f;
        f.startQuietly();
        f.connectCamera(f.host.makeCamera("A"));
        const auto enumerate = [&] { Q_EMIT f.host.enumeration->enumerationChanged(); };
        QCOMPARE(f.callsFor(enumerate), initialCameraCount(1));
        QCOMPARE(f.callsFor(enumerate), QStringList());
        QCOMPARE(f.callsFor(enumerate), QStringList());
    }

    void initialCameraCountIsSentOnceForChangesThatWereQueuedTogether()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(f.callsFor([&] {
            QSemaphore busy;
            QMetaObject::invokeMethod(
                f.provider, [&] { busy.acquire(); }, Qt::QueuedConnection);
            for (int i = 0; i < 3; ++i) {
                Q_EMIT f.host.enumeration->enumerationChanged();
            }
            busy.release();
            QMetaObject::invokeMethod(
                f.provider, [] {}, Qt::BlockingQueuedConnection);
        }),
                 initialCameraCount(0));
    }

    void initialCameraCountIsSentAgainInTheNextSession()
    {
        TrackingFixture f;
        f.start();
        const auto enumerate = [&] { Q_EMIT f.host.enumeration->enumerationChanged(); };
        QCOMPARE(f.callsFor(enumerate), initialCameraCount(0));
        f.stop();
        f.start();
        QCOMPARE(f.callsFor(enumerate),
                 QStringList{QStringLiteral(
                     "ruiTrackEventText(#2 | GeneralEvent | InitialCameraCount | "
                     R"({"EventCategory":"GeneralEvent","EventName":"InitialCameraCount",)"
                     R"("InitialCameraCount":0} | ))")});
    }

    void secondSessionCountsEveryCameraEverUsed()
    {
        TrackingFixture f;
        const auto a = f.host.makeCamera("A");
        const auto b = f.host.makeCamera("B");
        f.start();
        f.connectCamera(a);
        f.connectCamera(b);
        f.analytics.takeCalls();
        f.stop();
        QVERIFY(f.analytics.takeCalls().at(0).contains(ended(2, 2)));

        f.start();
        f.emitFromHost([&] { Q_EMIT f.host.cameraStatus->deviceDisconnected(b); });
        f.connectCamera(b);
        f.analytics.takeCalls();
        f.stop();
        QVERIFY(f.analytics.calls().at(0).contains(ended(2, 2)));
    }

    void finalCameraCountFollowsEveryConnectAndDisconnect()
    {
        TrackingFixture f;
        const auto a = f.host.makeCamera("A");
        f.start();
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->deviceDisconnected(a);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(a);
        });
        f.analytics.takeCalls();
        f.stop();
        QVERIFY2(f.analytics.calls().at(0).contains(ended(-2, 0)), "the count is not clamped");
    }

    void stopDestroysTheParameterObservers()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.start();
        f.openCamera(camera);
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("1")); }).size(), 1);
        f.stop();
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("2")); }), QStringList());
    }

    void missingServicesOnlyCostTheirSubscriptions()
    {
        TrackingFixture f;
        f.host.removeService(f.host.deviceSelector);
        f.host.removeService(f.host.enumeration);
        f.host.removeService(f.host.parameterService);
        f.inTrackingThread([&] { QVERIFY(!f.provider->acquireServices(&f.host)); });
        const MessageLog log;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceConnected(camera); }).size(),
                 2);
        QCOMPARE(f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->deviceOpened(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStarted(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
        }),
                 QStringList());
        f.stop();
        QCOMPARE(log.texts(), QStringList());
    }

    void missingCameraStatusLeavesTheSessionAndTheOtherSubscriptions()
    {
        TrackingFixture f;
        f.host.removeService(f.host.cameraStatus);
        f.inTrackingThread([&] { QVERIFY(!f.provider->acquireServices(&f.host)); });
        f.start();
        const QStringList started = f.analytics.takeCalls();
        QCOMPARE(started.size(), 5);
        QVERIFY(started.at(4).contains(QLatin1String("\"EventName\":\"SessionStarted\"")));

        const auto camera = f.host.makeCamera("A");
        QCOMPARE(f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->deviceConnected(camera);
            Q_EMIT f.host.cameraStatus->deviceOpened(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(camera);
        }),
                 QStringList());
        const auto gain = QSharedPointer<FakeInteger>::create(QStringLiteral("@CameraDevice/Gain"));
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.featureTree->currentChanged(gain); }).size(), 1);
        const auto enumerate = [&] { Q_EMIT f.host.enumeration->enumerationChanged(); };
        QCOMPARE(f.callsFor(enumerate), initialCameraCount(0));

        f.stop();
        const QStringList stopped = f.analytics.takeCalls();
        QCOMPARE(stopped.size(), 3);
        QVERIFY(stopped.at(0).contains(ended(0, 0)));
        QCOMPARE(stopped.mid(1), QStringList({QStringLiteral("ruiStopSDK(#1 | 0)"),
                                              QStringLiteral("ruiDestroyInstance(#1)")}));
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.featureTree->currentChanged(gain); }),
                 QStringList());
    }
};

NERIX_TEST_MAIN(TrackingTest)
#include "TrackingTest.moc"
