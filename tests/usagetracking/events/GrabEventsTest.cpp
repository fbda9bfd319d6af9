// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Grabs that start and stop.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <functional>
#include <stdexcept>

using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;

namespace {

const char *const modeName = "@CameraDevice/AcquisitionMode";

/// Lets something throw that the grab of a camera asks for.
using Breakage = std::function<void(FakeHost &, const QSharedPointer<FakeCamera> &)>;

} // namespace

Q_DECLARE_METATYPE(Breakage)

class GrabEventsTest : public QObject
{
    Q_OBJECT

private:
    static QStringList started(const char *type, int number = 0,
                               const char *model = "Vendor ab1234-50c")
    {
        return {eventCall("Grab", "Started",
                          QStringLiteral("{\"CameraNr\":%1,\"EventCategory\":\"Grab\","
                                         "\"EventName\":\"Started\",\"GrabType\":\"%2\","
                                         "\"Model\":\"%3\"}")
                              .arg(number)
                              .arg(QString::fromUtf8(type), QString::fromUtf8(model)))};
    }

    /// The event of a stop without statistics and without counters.
    static QStringList stopped(const char *type, int number = 0,
                               const char *model = "Vendor ab1234-50c")
    {
        return {eventCall(
            "Grab", "Stopped",
            QStringLiteral("{\"CameraNr\":%1,\"EventCategory\":\"Grab\","
                           "\"EventName\":\"Stopped\",\"GrabType\":\"%2\",\"Model\":\"%3\","
                           "\"StatusBarStats\":\"{\"BPS\":0,\"FPS\":0,\"ImagesFailedCount\":0,"
                           "\"ImagesGrabbedCount\":0}\","
                           "\"StreamStats\":\"{\"FailedBufferCount\":-1,\"FailedPacketCount\":-1,"
                           "\"MissedFrameCount\":-1,\"ResendPacketCount\":-1,"
                           "\"ResendRequestCount\":-1,\"ResynchronizationCount\":-1,"
                           "\"TotalBufferCount\":-1,\"TotalPacketCount\":-1}\"}")
                .arg(number)
                .arg(QString::fromUtf8(type), QString::fromUtf8(model)))};
    }

    static QStringList startCalls(TrackingFixture &f, const CameraInfoPtr &camera)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->cameraGrabStarted(camera); });
    }

    static QStringList stopCalls(TrackingFixture &f, const CameraInfoPtr &camera)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera); });
    }

    /// A connected camera in \a mode.
    static QSharedPointer<FakeCamera> connectCamera(TrackingFixture &f, const char *mode,
                                                    const char *model = "ab1234-50c")
    {
        const auto camera = f.host.makeCamera("A", model);
        addMode(f, camera)->stateText = QString::fromUtf8(mode);
        f.connectCamera(camera);
        return camera;
    }

    static QSharedPointer<FakeEnumeration> addMode(TrackingFixture &f,
                                                   const QSharedPointer<FakeCamera> &camera)
    {
        return f.host.parametersOf(camera)->add<FakeEnumeration>(modeName);
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void startedTellsTheMode()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(startCalls(f, connectCamera(f, "Continuous")),
                 QStringList("ruiTrackEventText(#1 | Grab | Started | "
                             "{\"CameraNr\":0,\"EventCategory\":\"Grab\",\"EventName\":\"Started\","
                             "\"GrabType\":\"Continuous\",\"Model\":\"Vendor ab1234-50c\"} | )"));
    }

    void stoppedCarriesTwoTextsWhoseEscapesAreRemoved()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(stopCalls(f, connectCamera(f, "SingleFrame")),
                 QStringList(
                     "ruiTrackEventText(#1 | Grab | Stopped | "
                     "{\"CameraNr\":0,\"EventCategory\":\"Grab\",\"EventName\":\"Stopped\","
                     "\"GrabType\":\"SingleFrame\",\"Model\":\"Vendor ab1234-50c\","
                     "\"StatusBarStats\":\"{\"BPS\":0,\"FPS\":0,\"ImagesFailedCount\":0,"
                     "\"ImagesGrabbedCount\":0}\","
                     "\"StreamStats\":\"{\"FailedBufferCount\":-1,\"FailedPacketCount\":-1,"
                     "\"MissedFrameCount\":-1,\"ResendPacketCount\":-1,\"ResendRequestCount\":-1,"
                     "\"ResynchronizationCount\":-1,\"TotalBufferCount\":-1,"
                     "\"TotalPacketCount\":-1}\"} | )"));
    }

    void theModelIsMasked()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "Continuous", "XQZ-2000");
        QCOMPARE(startCalls(f, camera), started("Continuous", 0, "Vendor ***-2000"));
        QCOMPARE(stopCalls(f, camera), stopped("Continuous", 0, "Vendor ***-2000"));
    }

    void theModeIsNotFiltered()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "XQZ /tmp/\xc3\xa9");
        QCOMPARE(startCalls(f, camera), started("XQZ /tmp/\xc3\xa9"));
        QCOMPARE(stopCalls(f, camera), stopped("XQZ /tmp/\xc3\xa9"));
    }

    void modeOfAnyKindIsReadAsText()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.host.parametersOf(camera)->add<FakeInteger>(modeName)->stateText = QStringLiteral("3");
        f.connectCamera(camera);
        QCOMPARE(startCalls(f, camera), started("3"));
        QCOMPARE(stopCalls(f, camera), stopped("3"));
    }

    void emptyModeIsAText()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "");
        QCOMPARE(startCalls(f, camera), started(""));
        QCOMPARE(stopCalls(f, camera), stopped(""));
    }

    void cameraNeverSeenHasNumberMinusOneAndIsNotNumbered()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("B");
        addMode(f, camera)->stateText = QStringLiteral("Continuous");
        QCOMPARE(startCalls(f, camera), started("Continuous", -1));
        QCOMPARE(stopCalls(f, camera), stopped("Continuous", -1));
        QCOMPARE(startCalls(f, connectCamera(f, "Continuous")), started("Continuous", 0));
    }

    void missingModeDropsTheStartAndIsUndefinedAtTheStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.connectCamera(camera);
        QCOMPARE(startCalls(f, camera), QStringList());
        QCOMPARE(stopCalls(f, camera), stopped("undefined"));
    }

    void unreadableModeDropsTheStartAndIsUndefinedAtTheStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.connectCamera(camera);
        addMode(f, camera)->throwing = {"valueText"};
        const MessageLog log;
        QCOMPARE(startCalls(f, camera), QStringList());
        QCOMPARE(stopCalls(f, camera), stopped("undefined"));
        QCOMPARE(log.texts(), QStringList());
    }

    void anyExceptionDropsTheStartWithoutAWord_data()
    {
        QTest::addColumn<Breakage>("breakage");
        const auto row = [](const char *name, const Breakage &breakage) {
            QTest::newRow(name) << breakage;
        };
        row("of the parameter service", [](FakeHost &host, const auto &) {
            host.parameterService->onFetch = [] { throw std::runtime_error("fetch failed"); };
        });
        row("of another kind than the standard ones",
            [](FakeHost &host, const auto &) { host.parameterService->onFetch = [] { throw 5; }; });
        row("of the look-up of the mode", [](FakeHost &host, const auto &camera) {
            host.parametersOf(camera)->throwingLookups = {QLatin1String(modeName)};
        });
        row("of the value of the mode", [](FakeHost &host, const auto &camera) {
            const auto mode = host.parametersOf(camera)->all.at(0);
            mode.template dynamicCast<FakeEnumeration>()->throwing = {"valueText"};
        });
        row("of a mode that is missing",
            [](FakeHost &host, const auto &camera) { host.parametersOf(camera)->all.clear(); });
        row("of the camera's identity",
            [](FakeHost &, const auto &camera) { camera->identityThrows = true; });
    }

    void anyExceptionDropsTheStartWithoutAWord()
    {
        QFETCH(Breakage, breakage);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "Continuous");
        breakage(f.host, camera);
        const MessageLog log;
        QCOMPARE(startCalls(f, camera), QStringList());
        QCOMPARE(log.texts(), QStringList());
    }

    void whateverTheModeThrowsItIsUndefinedAtTheStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.connectCamera(camera);
        const auto mode = addMode(f, camera);
        mode->throwing = {"valueText"};
        mode->raise = throwNumber;
        QCOMPARE(stopCalls(f, camera), stopped("undefined"));
    }

    void lookUpOfTheModeThatFailsIsUndefinedAtTheStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "Continuous");
        f.host.parametersOf(camera)->throwingLookups = {QLatin1String(modeName)};
        QCOMPARE(stopCalls(f, camera), stopped("undefined"));
    }

    void exceptionOfTheCameraLeavesTheSlotOfTheStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "Continuous");
        camera->identityThrows = true;
        QCOMPARE(stopCalls(f, camera), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList("identity failed"));
    }

    void withoutParametersNothingIsSentAndNothingLogged()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = QSharedPointer<FakeCamera>::create("A");
        f.connectCamera(camera);
        const MessageLog log;
        QCOMPARE(startCalls(f, camera), QStringList());
        QCOMPARE(stopCalls(f, camera), QStringList());
        QCOMPARE(log.texts(), QStringList());
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
        f.startQuietly();
        const auto parameters = QSharedPointer<FakeParameterCollection>::create();
        parameters->add<FakeEnumeration>(modeName)->stateText = QStringLiteral("Continuous");
        f.host.parameterService->collections.insert(device.data(), parameters);
        const MessageLog log;
        f.callSlot("onCameraGrabStarted", device);
        f.callSlot("onCameraGrabStopped", device);
        QCOMPARE(log.texts(), QStringList());
        QCOMPARE(f.analytics.calls(), QStringList());
        QCOMPARE(f.host.parameterService->fetches, 0);
    }

    void noCameraInTheSignalIsIgnored()
    {
        TrackingFixture f;
        f.startQuietly();
        const MessageLog log;
        QCOMPARE(startCalls(f, CameraInfoPtr()), QStringList());
        QCOMPARE(stopCalls(f, CameraInfoPtr()), QStringList());
        QCOMPARE(log.texts(), QStringList());
    }

    void twoStartsAndAStopWithoutAStartAreReportedAsTheyCome()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "Continuous");
        QCOMPARE(stopCalls(f, camera), stopped("Continuous"));
        const QStringList calls = f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->cameraGrabStarted(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStarted(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
            Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera);
        });
        QCOMPARE(calls, started("Continuous") + started("Continuous") + stopped("Continuous")
                            + stopped("Continuous"));
    }

    void startedKeepsBackslashes()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "a\\b\"c\nd", "m\\n");
        QCOMPARE(startCalls(f, camera), started("a\\\\b\\\"c\\nd", 0, "Vendor m\\\\n"));
    }

    void stoppedHasNoBackslashWhateverItsValuesHeld()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f, "a\\b\"c\nd", "m\\n");
        const QStringList calls = stopCalls(f, camera);
        QCOMPARE(calls, stopped("ab\"cnd", 0, "Vendor mn"));
        QVERIFY(!calls.at(0).contains('\\'));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, GrabEventsTest)
#include "GrabEventsTest.moc"
