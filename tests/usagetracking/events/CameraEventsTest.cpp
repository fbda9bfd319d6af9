// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Cameras that come and go, and what the user selects.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <optional>

using Core::CameraPoolComponents::DeviceBaseInfoPtr;

class CameraEventsTest : public QObject
{
    Q_OBJECT

private:
    static QString connected(int number, const char *model = "Vendor ab1234-50c")
    {
        return eventCall("Camera", "Connected",
                         QStringLiteral(R"({"CameraNr":%1,"EventCategory":"Camera",)"
                                        R"("EventName":"Connected","Model":"%2"})")
                             .arg(number)
                             .arg(model));
    }

    static QStringList removed(int number, const char *model = "Vendor ab1234-50c")
    {
        return {eventCall("Camera", "Removed",
                          QStringLiteral(R"({"CameraNr":%1,"EventCategory":"Camera",)"
                                         R"("EventName":"Removed","Model":"%2"})")
                              .arg(number)
                              .arg(model))};
    }

    static QStringList connectCalls(TrackingFixture &f, const DeviceBaseInfoPtr &device)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceConnected(device); });
    }

    static QStringList removeCalls(TrackingFixture &f, const DeviceBaseInfoPtr &device)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceDisconnected(device); });
    }

    static QStringList selectCalls(TrackingFixture &f, const DeviceBaseInfoPtr &device)
    {
        return f.callsFor([&] { Q_EMIT f.host.deviceSelector->selectionChanged(device); });
    }

    static QStringList chooseCalls(TrackingFixture &f, const char *fullName)
    {
        const auto parameter = QSharedPointer<FakeInteger>::create(QString::fromUtf8(fullName));
        return f.callsFor([&] { Q_EMIT f.host.featureTree->currentChanged(parameter); });
    }

    /// The count of connected cameras, as the enumeration event tells it.
    static QString cameraCount(TrackingFixture &f)
    {
        const QStringList calls =
            f.callsFor([&] { Q_EMIT f.host.enumeration->enumerationChanged(); });
        return calls.value(0)
            .section(QStringLiteral("\"InitialCameraCount\":"), -1)
            .section('}', 0, 0);
    }

    std::optional<MessageLog> m_log;

private Q_SLOTS:
    void init()
    {
        m_log.emplace();
    }

    // Whatever comes, nothing is said about it.
    void cleanup()
    {
        const QStringList logged = m_log->texts();
        m_log.reset();
        QCOMPARE(logged, QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void connectedSendsThePlainModelEventAndThenTheRecord()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(connectCalls(f, f.host.makeCamera("A", "ab1234-50c")),
                 QStringList({"ruiTrackEvent(#1 | Model | Vendor ab1234-50c | )",
                              "ruiTrackEventText(#1 | Camera | Connected | "
                              R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Connected",)"
                              R"("Model":"Vendor ab1234-50c"} | ))"}));
    }

    void removedSendsTheRecordAlone()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A", "ab1234-50c");
        f.connectCamera(camera);
        QCOMPARE(removeCalls(f, camera),
                 QStringList("ruiTrackEventText(#1 | Camera | Removed | "
                             R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Removed",)"
                             R"("Model":"Vendor ab1234-50c"} | ))"));
    }

    void theModelIsMaskedInEveryPlace()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A", "XQZ-2000");
        QCOMPARE(connectCalls(f, camera),
                 QStringList({modelCall("Vendor ***-2000"), connected(0, "Vendor ***-2000")}));
        QCOMPARE(removeCalls(f, camera), removed(0, "Vendor ***-2000"));
    }

    void textsArePassedAsUtf8()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A", "m\xc3\xa9\xf0\x9f\x93\xb7");
        QCOMPARE(connectCalls(f, camera),
                 QStringList({modelCall("Vendor m\xc3\xa9\xf0\x9f\x93\xb7"),
                              connected(0, "Vendor m\xc3\xa9\xf0\x9f\x93\xb7")}));
    }

    void deviceThatIsNoCameraOnlyCounts_data()
    {
        QTest::addColumn<DeviceBaseInfoPtr>("device");
        QTest::newRow("another device") << DeviceBaseInfoPtr(QSharedPointer<FakeDevice>::create());
        QTest::newRow("null") << DeviceBaseInfoPtr();
    }

    void deviceThatIsNoCameraOnlyCounts()
    {
        QFETCH(DeviceBaseInfoPtr, device);
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(connectCalls(f, device), QStringList());
        QCOMPARE(connectCalls(f, device), QStringList());
        QCOMPARE(connectCalls(f, device), QStringList());
        QCOMPARE(removeCalls(f, device), QStringList());
        QCOMPARE(cameraCount(f), QStringLiteral("2"));
    }

    void selectionOfNoParameterIsDropped()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.featureTree->currentChanged({}); }), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void theCounterChangesBeforeAnythingElse()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto unknowable = f.host.makeCamera("A");
        unknowable->identityThrows = true;
        QCOMPARE(connectCalls(f, unknowable), QStringList());
        QCOMPARE(connectCalls(f, unknowable), QStringList());
        QCOMPARE(removeCalls(f, unknowable), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(),
                 QStringList({"identity failed", "identity failed", "identity failed"}));
        QCOMPARE(cameraCount(f), QStringLiteral("1"));
    }

    void reconnectedCameraKeepsItsNumber()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto first = f.host.makeCamera("A");
        const auto second = f.host.makeCamera("B");
        QCOMPARE(connectCalls(f, first).value(1), connected(0));
        QCOMPARE(connectCalls(f, second).value(1), connected(1));
        QCOMPARE(removeCalls(f, first), removed(0));
        QCOMPARE(connectCalls(f, first).value(1), connected(0));
        QCOMPARE(removeCalls(f, second), removed(1));
    }

    void reconnectedCameraIsKnownByItsIdentityNotByItsObject()
    {
        TrackingFixture f;
        f.startQuietly();
        f.connectCamera(f.host.makeCamera("A"));
        f.connectCamera(f.host.makeCamera("B"));
        QCOMPARE(connectCalls(f, f.host.makeCamera("B")).value(1), connected(1));
        QCOMPARE(connectCalls(f, f.host.makeCamera("C")).value(1), connected(2));
    }

    void displayNameDoesNotIdentifyACamera()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto first = f.host.makeCamera("A");
        const auto second = f.host.makeCamera("B");
        first->userName = QStringLiteral("Left");
        second->userName = QStringLiteral("Left");
        QCOMPARE(connectCalls(f, first).value(1), connected(0));
        QCOMPARE(connectCalls(f, second).value(1), connected(1));
        first->userName = QStringLiteral("Right");
        QCOMPARE(removeCalls(f, first), removed(0));
    }

    void identitiesAreComparedExactlyAndCaseSensitively()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(connectCalls(f, f.host.makeCamera("cam")).value(1), connected(0));
        QCOMPARE(connectCalls(f, f.host.makeCamera("Cam")).value(1), connected(1));
        QCOMPARE(connectCalls(f, f.host.makeCamera("cam ")).value(1), connected(2));
        QCOMPARE(connectCalls(f, f.host.makeCamera("ca")).value(1), connected(3));
        QCOMPARE(connectCalls(f, f.host.makeCamera("")).value(1), connected(4));
    }

    void theIdentityIsAskedAnewForEveryEvent()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.connectCamera(camera);
        camera->cameraIdentity = QStringLiteral("B");
        QCOMPARE(removeCalls(f, camera), removed(-1));
    }

    void removalOfACameraNeverSeenHasNumberMinusOneAndStillCounts()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(removeCalls(f, f.host.makeCamera("A")), removed(-1));
        QCOMPARE(cameraCount(f), QStringLiteral("-1"));
    }

    void removalNumbersNoCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        removeCalls(f, f.host.makeCamera("A"));
        QCOMPARE(connectCalls(f, f.host.makeCamera("B")).value(1), connected(0));
    }

    void numbersOutliveTheSession()
    {
        TrackingFixture f;
        f.startQuietly();
        f.connectCamera(f.host.makeCamera("A"));
        f.connectCamera(f.host.makeCamera("B"));
        f.stop();
        f.start();
        QCOMPARE(connectCalls(f, f.host.makeCamera("B")).value(1),
                 connected(1).replace("#1", "#2"));
    }

    void eventsComeInTheOrderOfTheSignals()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const QStringList calls = f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->deviceConnected(camera);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(camera);
            Q_EMIT f.host.cameraStatus->deviceConnected(camera);
        });
        QCOMPARE(calls, QStringList()
                            << modelCall("Vendor ab1234-50c") << connected(0) << removed(0)
                            << modelCall("Vendor ab1234-50c") << connected(0));
    }

    void selectingADeviceSendsNothing_data()
    {
        QTest::addColumn<DeviceBaseInfoPtr>("device");
        QTest::newRow("a camera") << DeviceBaseInfoPtr(QSharedPointer<FakeCamera>::create("A"));
        QTest::newRow("a device that is no camera")
            << DeviceBaseInfoPtr(QSharedPointer<FakeDevice>::create());
        QTest::newRow("none") << DeviceBaseInfoPtr();
    }

    void selectingADeviceSendsNothing()
    {
        QFETCH(DeviceBaseInfoPtr, device);
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(selectCalls(f, device), QStringList());
    }

    void selectionNumbersNoCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        selectCalls(f, f.host.makeCamera("A"));
        QCOMPARE(connectCalls(f, f.host.makeCamera("B")).value(1), connected(0));
    }

    void selectionIsObservedAndFormattedThoughNotSent()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto unknowable = f.host.makeCamera("A");
        unknowable->identityThrows = true;
        QCOMPARE(selectCalls(f, unknowable), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList("identity failed"));
    }

    void chosenFeatureIsSentUnderItsOwnName()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(
            chooseCalls(f, "@CameraDevice/ExposureTime"),
            QStringList("ruiTrackEventText(#1 | FeatureChosen | ExposureTime | "
                        R"({"EventCategory":"FeatureChosen","EventName":"ExposureTime"} | ))"));
    }

    void chosenFeatureIsNotFiltered()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(chooseCalls(f, "@CameraDevice/XQZ C:\\dir\\\xc3\xa9"),
                 oneEvent("FeatureChosen", QStringLiteral("XQZ C:\\dir\\\u00e9"),
                          QStringLiteral("{\"EventCategory\":\"FeatureChosen\","
                                         "\"EventName\":\"XQZ C:\\\\dir\\\\\u00e9\"}")));
    }

    void chosenFeatureNeedsNoTrackedCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(chooseCalls(f, "@StreamGrabber0/Statistic_Total_Buffer_Count"),
                 oneEvent("FeatureChosen", "Statistic_Total_Buffer_Count",
                          R"({"EventCategory":"FeatureChosen",)"
                          R"("EventName":"Statistic_Total_Buffer_Count"})"));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, CameraEventsTest)
#include "CameraEventsTest.moc"
