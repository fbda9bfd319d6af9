// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Devices that are opened and closed.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

using Core::CameraPoolComponents::DeviceBaseInfoPtr;

namespace {

/// What the life of a camera leads to.
const QStringList everyEvent{"Model | Vendor ab1234-50c",
                             "Camera | Connected",
                             "GeneralEvent | InitialCameraCount",
                             "Camera | Opened",
                             "FeatureChosen | Gain",
                             "ParameterValueChanged | Gain",
                             "Grab | Started",
                             "Grab | Stopped",
                             "Grab | Failed",
                             "Camera | Closed",
                             "Camera | Removed"};

} // namespace

class DeviceEventsTest : public QObject
{
    Q_OBJECT

private:
    static QStringList configuration(const char *name, int number, const char *featureStream,
                                     const char *model = "Vendor ab1234-50c")
    {
        return {eventCall(
            "Camera", name,
            QStringLiteral(R"({"CameraNr":%1,"EventCategory":"Camera",)"
                           R"("EventName":"%2","FeatureStreamStats":"%3",)"
                           R"("Model":"%4"})")
                .arg(number)
                .arg(QLatin1String(name), QString::fromUtf8(featureStream), QLatin1String(model)))};
    }

    static QStringList openCalls(TrackingFixture &f, const DeviceBaseInfoPtr &device)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceOpened(device); });
    }

    static QStringList closeCalls(TrackingFixture &f, const DeviceBaseInfoPtr &device)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceClosing(device); });
    }

    static QSharedPointer<FakeCamera> makeCamera(TrackingFixture &f, const char *identity,
                                                 const char *stream)
    {
        const auto camera = f.host.makeCamera(identity);
        f.host.parametersOf(camera)->stream = QString::fromUtf8(stream);
        return camera;
    }

    /// The life of one camera, with every signal that is heard.
    static void letEverythingHappen(TrackingFixture &f)
    {
        const auto camera = makeCamera(f, "A", "s");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.host.parametersOf(camera)->add<FakeEnumeration>("@CameraDevice/AcquisitionMode");
        const auto failure = std::make_shared<Nerix::CGrabResultData>(7U, "...");
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->deviceConnected(camera);
            Q_EMIT f.host.enumeration->enumerationChanged();
            Q_EMIT f.host.cameraStatus->deviceOpened(camera);
            Q_EMIT f.host.deviceSelector->selectionChanged(camera);
            Q_EMIT f.host.featureTree->currentChanged(gain);
        });
        f.emitFromHost([&] { gain->setValueText("1"); });
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->cameraGrabStarted(camera);
            Q_EMIT f.host.cameraStatus->cameraImageGrabbed(camera, failure);
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(camera);
        });
    }

    /// Category and name of each event.
    static QStringList sentEvents(const TrackingFixture &f)
    {
        QStringList events;
        for (const QString &call : f.analytics.calls()) {
            events.append(call.section(" | ", 1, 2));
        }
        return events;
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void openedCarriesTheFeatureStream()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeCamera(f, "A", "Width\t640\nGain\t1\n");
        QCOMPARE(
            openCalls(f, camera),
            QStringList("ruiTrackEventText(#1 | Camera | Opened | "
                        "{\"CameraNr\":0,\"EventCategory\":\"Camera\",\"EventName\":\"Opened\","
                        "\"FeatureStreamStats\":\"Width\\t640\\nGain\\t1\\n\","
                        "\"Model\":\"Vendor ab1234-50c\"} | )"));
    }

    void closedCarriesTheFeatureStream()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeCamera(f, "A", "Width\t640\nGain\t1\n");
        f.connectCamera(camera);
        QCOMPARE(
            closeCalls(f, camera),
            QStringList("ruiTrackEventText(#1 | Camera | Closed | "
                        "{\"CameraNr\":0,\"EventCategory\":\"Camera\",\"EventName\":\"Closed\","
                        "\"FeatureStreamStats\":\"Width\\t640\\nGain\\t1\\n\","
                        "\"Model\":\"Vendor ab1234-50c\"} | )"));
    }

    void openedAndClosedTellTheConfigurationOfThatMoment()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeCamera(f, "A", "before");
        QCOMPARE(openCalls(f, camera), configuration("Opened", 0, "before"));
        f.host.parametersOf(camera)->stream = QStringLiteral("after");
        QCOMPARE(closeCalls(f, camera), configuration("Closed", 0, "after"));
    }

    void onlyTheTreeOfTheCameraIsRead()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeCamera(f, "A", "");
        f.openCamera(camera);
        closeCalls(f, camera);
        QCOMPARE(f.host.parametersOf(camera)->streamsRead,
                 QStringList({"@CameraDevice", "@CameraDevice"}));
    }

    void theModelIsMaskedButTheFeatureStreamIsNot()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A", "XQZ-2000");
        f.host.parametersOf(camera)->stream = QStringLiteral("DeviceModelName XQZ-2000 /tmp/x");
        QCOMPARE(openCalls(f, camera),
                 configuration("Opened", 0, "DeviceModelName XQZ-2000 /tmp/x", "Vendor ***-2000"));
        QCOMPARE(closeCalls(f, camera),
                 configuration("Closed", 0, "DeviceModelName XQZ-2000 /tmp/x", "Vendor ***-2000"));
    }

    void openingGivesACameraThatWasNeverConnectedTheNextNumberAndNoModelEvent()
    {
        TrackingFixture f;
        f.startQuietly();
        f.connectCamera(f.host.makeCamera("A"));
        QCOMPARE(openCalls(f, makeCamera(f, "B", "s")), configuration("Opened", 1, "s"));
        QCOMPARE(openCalls(f, makeCamera(f, "B", "s")), configuration("Opened", 1, "s"));
        QCOMPARE(openCalls(f, makeCamera(f, "C", "s")), configuration("Opened", 2, "s"));
    }

    void openingKeepsTheNumberOfAConnectedCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeCamera(f, "A", "s");
        f.connectCamera(camera);
        f.connectCamera(f.host.makeCamera("B"));
        QCOMPARE(openCalls(f, camera), configuration("Opened", 0, "s"));
    }

    void openingDoesNotCountCameras()
    {
        TrackingFixture f;
        f.startQuietly();
        f.openCamera(makeCamera(f, "A", "s"));
        f.stop();
        QVERIFY(
            f.analytics.calls().at(1).contains(R"("FinalCameraCount":0,"TotalUsedCameraCount":1)"));
    }

    void closingNumbersNoCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(closeCalls(f, makeCamera(f, "A", "s")), configuration("Closed", -1, "s"));
        QCOMPARE(openCalls(f, makeCamera(f, "B", "s")), configuration("Opened", 0, "s"));
    }

    void deviceThatIsNoCameraIsIgnored_data()
    {
        QTest::addColumn<DeviceBaseInfoPtr>("device");
        QTest::newRow("another device") << DeviceBaseInfoPtr(QSharedPointer<FakeDevice>::create());
        QTest::newRow("null") << DeviceBaseInfoPtr();
    }

    void deviceThatIsNoCameraIsIgnored()
    {
        QFETCH(DeviceBaseInfoPtr, device);
        TrackingFixture f;
        const auto parameters = QSharedPointer<FakeParameterCollection>::create();
        const auto gain = parameters->add<FakeInteger>("@CameraDevice/Gain");
        f.host.parameterService->collections.insert(device.data(), parameters);
        f.startQuietly();
        const MessageLog log;
        QCOMPARE(openCalls(f, device), QStringList());
        QCOMPARE(closeCalls(f, device), QStringList());
        QCOMPARE(f.callsFor([&] { gain->setValueText("1"); }), QStringList());
        QCOMPARE(log.texts(), QStringList());
        QCOMPARE(f.host.parameterService->fetches, 0);
    }

    void withoutParametersNothingIsSentButTheCameraIsNumbered()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = QSharedPointer<FakeCamera>::create("A");
        const MessageLog log;
        QCOMPARE(openCalls(f, camera), QStringList());
        QCOMPARE(closeCalls(f, camera), QStringList());
        QCOMPARE(log.texts(), QStringList());
        QCOMPARE(f.host.parameterService->fetches, 2);
        QCOMPARE(openCalls(f, makeCamera(f, "B", "s")), configuration("Opened", 1, "s"));
    }

    void exceptionOfTheFeatureStreamLeavesTheSlotAndNoRecordIsSent()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.host.parametersOf(camera)->streamThrows = true;
        QCOMPARE(openCalls(f, camera), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList("featureStream failed"));
        QCOMPARE(closeCalls(f, camera), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList("featureStream failed"));
    }

    void observersOutliveAFailedFeatureStream()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.host.parametersOf(camera)->streamThrows = true;
        f.openCamera(camera);
        QCOMPARE(CatchingApplication::takeCaught().size(), 1);
        QCOMPARE(f.callsFor([&] { gain->setValueText("1"); }).size(), 1);
    }

    void closingKeepsTheObservers()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.openCamera(camera);
        closeCalls(f, camera);
        QCOMPARE(f.callsFor([&] { gain->setValueText("1"); }).size(), 1);
    }

    void closingComesAfterWhatWasQueuedBefore()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeCamera(f, "A", "s");
        QStringList seenOnReturn;
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->deviceOpened(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            seenOnReturn = f.analytics.calls();
        });
        QCOMPARE(seenOnReturn, configuration("Opened", 0, "s") + configuration("Closed", 0, "s"));
    }

    void everyEventIsSentInTheTrackingThread()
    {
        TrackingFixture f;
        f.startQuietly();
        letEverythingHappen(f);
        QCOMPARE(sentEvents(f), everyEvent);
        QCOMPARE(f.analytics.callsIn(&f.trackingThread), f.analytics.calls());
    }

    void everyEventIsSentWhateverTheLibraryAnswers()
    {
        TrackingFixture f;
        f.startQuietly();
        f.analytics.setResult(QStringLiteral("ruiTrackEvent"), 5);
        f.analytics.setResult(QStringLiteral("ruiTrackEventText"), 6);
        const MessageLog log;
        letEverythingHappen(f);
        QCOMPARE(sentEvents(f), everyEvent);
        QCOMPARE(log.texts(), QStringList());
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, DeviceEventsTest)
#include "DeviceEventsTest.moc"
