// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Signals that were queued while tracking and are delivered behind the stop: they are heard without
// a session.

#include "TestMain.h"
#include "TrackingFixture.h"

#include <functional>
#include <memory>

#include <QSemaphore>

namespace {

/// Emits signals of a host about its camera.
using Emission = std::function<void(FakeHost &, const QSharedPointer<FakeCamera> &)>;

QString parameterChanged(const char *handle, const char *before, const char *after)
{
    return QStringLiteral("ruiTrackEventText(%1 | ParameterValueChanged | Gain | "
                          R"({"CameraNr":0,"EventCategory":"ParameterValueChanged",)"
                          R"("EventName":"Gain","InitialValue":"%2","ParameterName":"Gain",)"
                          R"("ParameterValue":"%3"} | ))")
        .arg(QLatin1String(handle), QLatin1String(before), QLatin1String(after));
}

const QString openedWithoutASession =
    QStringLiteral("ruiTrackEventText(NULL | Camera | Opened | "
                   R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Opened",)"
                   R"("FeatureStreamStats":"","Model":"Vendor ab1234-50c"} | ))");

/// Queues a stop and, behind it, what \a emission emits. @return the calls behind the end of the
/// session.
QStringList callsBehindTheStop(TrackingFixture &f, const std::function<void()> &emission)
{
    QSemaphore busy;
    QMetaObject::invokeMethod(
        f.provider, [&] { busy.acquire(); }, Qt::QueuedConnection);
    QMetaObject::invokeMethod(f.provider, "stopTracking", Qt::QueuedConnection);
    f.host.inCameraThread(emission);
    busy.release();
    f.settle();
    return f.analytics.takeCalls().mid(3);
}

} // namespace

Q_DECLARE_METATYPE(Emission)

class QueuedBehindStopTest : public QObject
{
    Q_OBJECT

private:
    static void addCameraRows()
    {
        QTest::newRow("connected")
            << Emission([](auto &host, auto &camera) {
                   Q_EMIT host.cameraStatus->deviceConnected(camera);
               })
            << QStringList{"ruiTrackEvent(NULL | Model | Vendor ab1234-50c | )",
                           R"(ruiTrackEventText(NULL | Camera | Connected | {"CameraNr":0,)"
                           R"("EventCategory":"Camera","EventName":"Connected",)"
                           R"("Model":"Vendor ab1234-50c"} | ))"};
        QTest::newRow("removed")
            << Emission([](auto &host, auto &camera) {
                   Q_EMIT host.cameraStatus->deviceDisconnected(camera);
               })
            << QStringList{R"(ruiTrackEventText(NULL | Camera | Removed | {"CameraNr":-1,)"
                           R"("EventCategory":"Camera","EventName":"Removed",)"
                           R"("Model":"Vendor ab1234-50c"} | ))"};
        QTest::newRow("feature chosen")
            << Emission([](auto &host, auto &) {
                   Q_EMIT host.featureTree->currentChanged(
                       QSharedPointer<FakeInteger>::create("@CameraDevice/Gain"));
               })
            << QStringList{R"(ruiTrackEventText(NULL | FeatureChosen | Gain | )"
                           R"({"EventCategory":"FeatureChosen","EventName":"Gain"} | ))"};
    }

    static void addGrabRows()
    {
        QTest::newRow("grab started")
            << Emission([](auto &host, auto &camera) {
                   Q_EMIT host.cameraStatus->cameraGrabStarted(camera);
               })
            << QStringList{R"(ruiTrackEventText(NULL | Grab | Started | {"CameraNr":-1,)"
                           R"("EventCategory":"Grab","EventName":"Started",)"
                           R"("GrabType":"Continuous","Model":"Vendor ab1234-50c"} | ))"};
        QTest::newRow("grab stopped and failed")
            << Emission([](auto &host, auto &camera) {
                   Q_EMIT host.cameraStatus->cameraImageGrabbed(
                       camera, std::make_shared<Nerix::CGrabResultData>(7U, "..."));
                   Q_EMIT host.cameraStatus->cameraGrabStopped(camera);
               })
            << QStringList{"ruiTrackEventText(NULL | Grab | Stopped | {\"CameraNr\":-1,"
                           "\"EventCategory\":\"Grab\",\"EventName\":\"Stopped\","
                           "\"GrabType\":\"Continuous\",\"Model\":\"Vendor ab1234-50c\","
                           "\"StatusBarStats\":\"{\"BPS\":0,\"FPS\":0,\"ImagesFailedCount\":0,"
                           "\"ImagesGrabbedCount\":0}\","
                           "\"StreamStats\":\"{\"FailedBufferCount\":-1,\"FailedPacketCount\":-1,"
                           "\"MissedFrameCount\":-1,\"ResendPacketCount\":-1,"
                           "\"ResendRequestCount\":-1,\"ResynchronizationCount\":-1,"
                           "\"TotalBufferCount\":-1,\"TotalPacketCount\":-1}\"} | )",
                           R"(ruiTrackEventText(NULL | Grab | Failed | {"CameraNr":-1,)"
                           R"("EventCategory":"Grab","EventName":"Failed",)"
                           R"("ExceptionCode":"0x00000007","ExceptionCount":1,)"
                           R"("ExceptionText":"..."} | ))"};
    }

private Q_SLOTS:
    void openedCameraIsReportedToANullHandle()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        f.startQuietly();
        QCOMPARE(callsBehindTheStop(f, [&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); }),
                 QStringList(openedWithoutASession));
    }

    void everySlotPassesANullHandleOn_data()
    {
        QTest::addColumn<Emission>("emission");
        QTest::addColumn<QStringList>("calls");
        addCameraRows();
        addGrabRows();
    }

    void everySlotPassesANullHandleOn()
    {
        QFETCH(Emission, emission);
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        f.host.parametersOf(camera)
            ->add<FakeEnumeration>("@CameraDevice/AcquisitionMode")
            ->stateText = QStringLiteral("Continuous");
        f.startQuietly();
        QTEST(callsBehindTheStop(f, [&] { emission(f.host, camera); }), "calls");
    }

    // Its signal blocks the emitter, so it cannot be queued behind the stop.
    void closedCameraIsReportedToANullHandle()
    {
        TrackingFixture f;
        f.callSlot("onDeviceClosing", f.host.makeCamera("A"));
        QCOMPARE(f.analytics.calls(),
                 QStringList(R"(ruiTrackEventText(NULL | Camera | Closed | {"CameraNr":-1,)"
                             R"("EventCategory":"Camera","EventName":"Closed",)"
                             R"("FeatureStreamStats":"","Model":"Vendor ab1234-50c"} | ))"));
    }

    void camerasBehindTheStopAreCountedAndNumbered()
    {
        TrackingFixture f;
        f.startQuietly();
        callsBehindTheStop(f, [&] {
            Q_EMIT f.host.cameraStatus->deviceConnected(f.host.makeCamera("A"));
            Q_EMIT f.host.cameraStatus->deviceConnected(f.host.makeCamera("B"));
            Q_EMIT f.host.cameraStatus->deviceConnected(f.host.makeCamera("C"));
            Q_EMIT f.host.cameraStatus->deviceDisconnected(f.host.makeCamera("B"));
        });
        f.startQuietly();
        f.stop();
        QVERIFY(f.analytics.calls().value(0).contains(
            R"("FinalCameraCount":2,"TotalUsedCameraCount":3)"));
    }

    void enumerationIsReportedToANullHandle()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(callsBehindTheStop(f, [&] { Q_EMIT f.host.enumeration->enumerationChanged(); }),
                 QStringList(QStringLiteral(
                     "ruiTrackEventText(NULL | GeneralEvent | InitialCameraCount | "
                     R"({"EventCategory":"GeneralEvent","EventName":"InitialCameraCount",)"
                     R"("InitialCameraCount":0} | ))")));
    }

    void stopWithoutASessionKeepsTheObserversOfThatCamera_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::newRow("stop") << QByteArray("stopTracking");
        QTest::newRow("opt-out") << QByteArray("stopTrackingAndOptOut");
    }

    void stopWithoutASessionKeepsTheObserversOfThatCamera()
    {
        QFETCH(QByteArray, request);
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.startQuietly();
        callsBehindTheStop(f, [&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); });
        QMetaObject::invokeMethod(f.provider, request.constData(), Qt::BlockingQueuedConnection);
        QCOMPARE(f.analytics.takeCalls(), QStringList());
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("1")); }),
                 QStringList(parameterChanged("NULL", "", "1")));
    }

    void observersOfThatCameraKeepTheNullHandleUntilTheNextStop()
    {
        TrackingFixture f;
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.startQuietly();
        callsBehindTheStop(f, [&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); });
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("1")); }),
                 QStringList(parameterChanged("NULL", "", "1")));

        f.start();
        f.openCamera(camera);
        QCOMPARE(
            f.callsFor([&] { gain->setValueText(QStringLiteral("2")); }),
            QStringList({parameterChanged("NULL", "1", "2"), parameterChanged("#2", "", "2")}));

        f.stop();
        QCOMPARE(f.callsFor([&] { gain->setValueText(QStringLiteral("3")); }), QStringList());
    }
};

NERIX_TEST_MAIN(QueuedBehindStopTest)
#include "QueuedBehindStopTest.moc"
