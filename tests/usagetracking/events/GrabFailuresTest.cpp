// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Images that failed: counted silently, reported when the grab has stopped.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <memory>
#include <stdexcept>

using Core::CameraPoolComponents::CameraInfoPtr;
using Nerix::CGrabResultData;
using Nerix::CGrabResultPtr;

namespace {

CGrabResultPtr failure(quint32 code, const char *description)
{
    return std::make_shared<CGrabResultData>(code, description);
}

CGrabResultPtr success()
{
    return std::make_shared<CGrabResultData>(Nerix::CImage());
}

/// A camera that, if told so, cannot be asked for its identity once a failure was reported.
class VanishingCamera : public FakeCamera
{
public:
    VanishingCamera()
        : FakeCamera("A")
    {}

    QString identity() const override
    {
        const QStringList calls = RecordingAnalytics::instance().calls();
        if (vanishes && !calls.filter(R"("EventName":"Failed")").isEmpty()) {
            throw std::runtime_error("camera vanished");
        }
        return cameraIdentity;
    }

    bool vanishes = false;
};

} // namespace

class GrabFailuresTest : public QObject
{
    Q_OBJECT

private:
    static QString failed(const char *code, int count, const char *text, int number = 0)
    {
        return eventCall("Grab", "Failed",
                         QStringLiteral(R"({"CameraNr":%1,"EventCategory":"Grab",)"
                                        R"("EventName":"Failed","ExceptionCode":"%2",)"
                                        R"("ExceptionCount":%3,"ExceptionText":"%4"})")
                             .arg(number)
                             .arg(QLatin1String(code))
                             .arg(count)
                             .arg(QString::fromUtf8(text)));
    }

    static QStringList grab(TrackingFixture &f, const CameraInfoPtr &camera,
                            const QList<CGrabResultPtr> &results)
    {
        return f.callsFor([&] {
            for (const CGrabResultPtr &result : results) {
                Q_EMIT f.host.cameraStatus->cameraImageGrabbed(camera, result);
            }
        });
    }

    /// The "Failed" events after the "Stopped" one of a stop, sorted, since no order is promised.
    static QStringList reported(TrackingFixture &f, const CameraInfoPtr &camera)
    {
        QStringList calls =
            f.callsFor([&] { Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera); });
        if (calls.isEmpty() || !calls.takeFirst().contains(R"("EventName":"Stopped")")) {
            return {"no stop first"};
        }
        calls.sort();
        return calls;
    }

    static QSharedPointer<FakeCamera> connectCamera(TrackingFixture &f, const char *identity = "A")
    {
        const auto camera = f.host.makeCamera(identity);
        f.connectCamera(camera);
        return camera;
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void failuresAreReportedAfterTheStopOneEventForEachCode()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        QCOMPARE(grab(f, camera,
                      {failure(7, "Packets are missing"), failure(7, "Packets were lost"),
                       failure(255, "Timed out"), failure(7, "Packets")}),
                 QStringList());
        QCOMPARE(reported(f, camera),
                 QStringList({"ruiTrackEventText(#1 | Grab | Failed | "
                              R"({"CameraNr":0,"EventCategory":"Grab","EventName":"Failed",)"
                              R"("ExceptionCode":"0x00000007","ExceptionCount":3,)"
                              R"("ExceptionText":"***"} | ))",
                              "ruiTrackEventText(#1 | Grab | Failed | "
                              R"({"CameraNr":0,"EventCategory":"Grab","EventName":"Failed",)"
                              R"("ExceptionCode":"0x000000ff","ExceptionCount":1,)"
                              R"("ExceptionText":"***"} | ))"}));
    }

    void successfulImageChangesNothing()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        QCOMPARE(grab(f, camera, {success(), success()}), QStringList());
        QCOMPARE(reported(f, camera), QStringList());
        grab(f, camera, {success(), failure(1, "..."), success()});
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, "...")));
    }

    void successfulImageIsNotEvenAskedForItsCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        camera->identityThrows = true;
        QCOMPARE(grab(f, camera, {success()}), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void codeIsHexadecimalOfEightLowerCaseDigits_data()
    {
        QTest::addColumn<quint32>("code");
        QTest::addColumn<QString>("sent");
        QTest::newRow("0") << 0U << "0x00000000";
        QTest::newRow("42") << 42U << "0x0000002a";
        QTest::newRow("255") << 255U << "0x000000ff";
        QTest::newRow("eight digits") << 0xE1000014U << "0xe1000014";
        QTest::newRow("the largest") << 0xFFFFFFFFU << "0xffffffff";
    }

    void codeIsHexadecimalOfEightLowerCaseDigits()
    {
        QFETCH(quint32, code);
        QFETCH(QString, sent);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(code, "...")});
        QCOMPARE(reported(f, camera), QStringList(failed(sent.toLatin1(), 1, "...")));
    }

    void theTextIsMaskedAndNothingElse_data()
    {
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<QString>("sent");
        QTest::newRow("a path is masked")
            << QByteArray("Failed to open C:\\data\\img.bmp") << "Failed to open ***";
        QTest::newRow("a word counts as a file name") << QByteArray("Timeout") << "***";
        QTest::newRow("what is no path stays") << QByteArray("...") << "...";
        QTest::newRow("empty") << QByteArray("") << "";
        QTest::newRow("null counts as empty") << QByteArray() << "";
        QTest::newRow("escapes are kept") << QByteArray("\"\n\"") << "\\\"\\n\\\"";
        QTest::newRow("UTF-8") << QByteArray("\xe2\x80\xa6\xf0\x9f\x93\xb7")
                               << QStringLiteral("\u2026\U0001f4f7");
        QTest::newRow("long texts are not cut") << QByteArray(200000, '.') << QString(200000, '.');
    }

    void theTextIsMaskedAndNothingElse()
    {
        QFETCH(QByteArray, description);
        QFETCH(QString, sent);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, description.isNull() ? nullptr : description.constData())});
        QVERIFY(reported(f, camera) == QStringList(failed("0x00000001", 1, sent.toUtf8())));
    }

    void theTextIsThatOfTheFirstFailureOfTheCode()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, "."), failure(2, "!"), failure(1, ".."), failure(2, nullptr)});
        QCOMPARE(reported(f, camera),
                 QStringList({failed("0x00000001", 2, "."), failed("0x00000002", 2, "!")}));
    }

    void anEmptyFirstTextStays()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, nullptr), failure(1, "...")});
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 2, "")));
    }

    void secondStopReportsNoFailure()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, "...")});
        QCOMPARE(reported(f, camera).size(), 1);
        QCOMPARE(reported(f, camera), QStringList());
    }

    void afterAReportCountAndTextStartAnew()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, "."), failure(1, ".")});
        reported(f, camera);
        grab(f, camera, {failure(1, "!")});
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, "!")));
    }

    void camerasAreApart()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto first = connectCamera(f, "A");
        const auto second = connectCamera(f, "B");
        grab(f, first, {failure(1, ".")});
        grab(f, second, {failure(1, "!"), failure(1, "!")});
        QCOMPARE(reported(f, first), QStringList(failed("0x00000001", 1, ".", 0)));
        QCOMPARE(reported(f, second), QStringList(failed("0x00000001", 2, "!", 1)));
    }

    void failuresBelongToTheIdentityNotToTheDisplayName()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        camera->userName = QStringLiteral("Left");
        grab(f, camera, {failure(1, ".")});
        camera->userName = QStringLiteral("Right");
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, ".")));
    }

    void cameraNeverSeenHasNumberMinusOne()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        grab(f, camera, {failure(1, ".")});
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, ".", -1)));
    }

    void theNumberIsThatOfTheReportNotOfTheFailure()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        grab(f, camera, {failure(1, ".")});
        f.connectCamera(camera);
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, ".", 0)));
    }

    void stopWithoutParametersKeepsTheFailuresForALaterStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto parameters = f.host.parametersOf(camera);
        grab(f, camera, {failure(1, ".")});
        f.host.parameterService->collections.clear();
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera); }),
                 QStringList());
        f.host.parameterService->collections.insert(camera.data(), parameters);
        grab(f, camera, {failure(1, "!")});
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 2, ".")));
    }

    void stopOfADeviceThatIsNoCameraKeepsTheFailures()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, ".")});
        f.callSlot("onCameraGrabStopped", QSharedPointer<FakeDevice>::create());
        f.callSlot("onCameraGrabStopped", {});
        QCOMPARE(f.analytics.calls(), QStringList());
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, ".")));
    }

    void stopThatFailsAtACounterKeepsTheFailures()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto counter = f.host.parametersOf(camera)->add<FakeInteger>(
            "@StreamGrabber0/Statistic_Total_Buffer_Count");
        counter->throwing = {"value"};
        grab(f, camera, {failure(1, ".")});
        QCOMPARE(reported(f, camera), QStringList("no stop first"));
        QCOMPARE(CatchingApplication::takeCaught(), QStringList("value failed"));
        counter->throwing.clear();
        QCOMPARE(reported(f, camera), QStringList(failed("0x00000001", 1, ".")));
    }

    void reportThatBreaksOffKeepsAllTheFailuresForALaterStop()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = QSharedPointer<VanishingCamera>::create();
        f.host.parameterService->collections.insert(
            camera.data(), QSharedPointer<FakeParameterCollection>::create());
        f.connectCamera(camera);
        grab(f, camera, {failure(1, "."), failure(2, "!"), failure(2, "!")});
        camera->vanishes = true;
        QCOMPARE(reported(f, camera).size(), 1);
        QCOMPARE(CatchingApplication::takeCaught(), QStringList("camera vanished"));
        camera->vanishes = false;
        QCOMPARE(reported(f, camera),
                 QStringList({failed("0x00000001", 1, "."), failed("0x00000002", 2, "!")}));
        QCOMPARE(reported(f, camera), QStringList());
    }

    void nullCameraAndNullResultAreDropped()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        QCOMPARE(grab(f, camera, {CGrabResultPtr()}), QStringList());
        QCOMPARE(grab(f, CameraInfoPtr(), {failure(1, "."), success()}), QStringList());
        QCOMPARE(reported(f, camera), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void failuresAndUnreadableCountersAreNotLogged()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const MessageLog log;
        grab(f, camera, {failure(1, "."), failure(1, "."), failure(2, nullptr)});
        QCOMPARE(reported(f, camera).size(), 2);
        QCOMPARE(log.texts(), QStringList());
    }

    void failuresOutliveRemovalAndSession()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        grab(f, camera, {failure(1, ".")});
        f.emitFromHost([&] { Q_EMIT f.host.cameraStatus->deviceDisconnected(camera); });
        f.stop();
        f.start();
        QCOMPARE(reported(f, camera),
                 QStringList(failed("0x00000001", 1, ".")).replaceInStrings("#1", "#2"));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, GrabFailuresTest)
#include "GrabFailuresTest.moc"
