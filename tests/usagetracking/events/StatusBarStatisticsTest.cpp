// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The figures of the status bar that a stop carries.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <cmath>
#include <limits>

namespace {

const char *const noCounters =
    R"({"FailedBufferCount":-1,"FailedPacketCount":-1,"MissedFrameCount":-1,)"
    R"("ResendPacketCount":-1,"ResendRequestCount":-1,"ResynchronizationCount":-1,)"
    R"("TotalBufferCount":-1,"TotalPacketCount":-1})";

const char *const noStatistics =
    R"({"BPS":0,"FPS":0,"ImagesFailedCount":0,"ImagesGrabbedCount":0})";

} // namespace

class StatusBarStatisticsTest : public QObject
{
    Q_OBJECT

private:
    static QStringList stopped(const char *statusBar, const char *stream)
    {
        return {eventCall("Grab", "Stopped",
                          QStringLiteral(R"({"CameraNr":0,"EventCategory":"Grab",)"
                                         R"("EventName":"Stopped","GrabType":"undefined",)"
                                         R"("Model":"Vendor ab1234-50c","StatusBarStats":"%1",)"
                                         R"("StreamStats":"%2"})")
                              .arg(QLatin1String(statusBar), QLatin1String(stream)))};
    }

    static QStringList stopCalls(TrackingFixture &f, const QSharedPointer<FakeCamera> &camera)
    {
        return f.callsFor([&] { Q_EMIT f.host.cameraStatus->cameraGrabStopped(camera); });
    }

    static QStringList update(TrackingFixture &f, const QSharedPointer<FakeCamera> &camera,
                              int grabbed, int failed, double fps, quint64 bps)
    {
        return f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->cameraStatisticUpdated(camera, grabbed, failed, fps, bps,
                                                               CCompressionStatistic());
        });
    }

    static QSharedPointer<FakeCamera> connectCamera(TrackingFixture &f)
    {
        const auto camera = f.host.makeCamera("A");
        f.connectCamera(camera);
        return camera;
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void updateSendsNothingAndTheStopTellsItsFigures()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        QCOMPARE(update(f, camera, 1200, 3, 29.97, 7864320), QStringList());
        QCOMPARE(
            stopCalls(f, camera),
            QStringList("ruiTrackEventText(#1 | Grab | Stopped | "
                        R"({"CameraNr":0,"EventCategory":"Grab","EventName":"Stopped",)"
                        R"("GrabType":"undefined","Model":"Vendor ab1234-50c",)"
                        R"("StatusBarStats":"{"BPS":7864320,"FPS":29,"ImagesFailedCount":3,)"
                        R"("ImagesGrabbedCount":1200}",)"
                        R"("StreamStats":"{"FailedBufferCount":-1,"FailedPacketCount":-1,)"
                        R"("MissedFrameCount":-1,"ResendPacketCount":-1,"ResendRequestCount":-1,)"
                        R"("ResynchronizationCount":-1,"TotalBufferCount":-1,)"
                        R"("TotalPacketCount":-1}"} | ))"));
    }

    void withoutAnUpdateAllFourAreZero()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(stopCalls(f, connectCamera(f)), stopped(noStatistics, noCounters));
    }

    void frameRateIsTruncatedTowardZero_data()
    {
        QTest::addColumn<double>("fps");
        QTest::addColumn<QString>("sent");
        QTest::newRow("12.9") << 12.9 << "12";
        QTest::newRow("29.97 is never rounded up") << 29.97 << "29";
        QTest::newRow("0.999") << 0.999 << "0";
        QTest::newRow("a whole one") << 30.0 << "30";
        QTest::newRow("negative") << -3.7 << "-3";
        QTest::newRow("negative without a whole part") << -0.5 << "0";
        QTest::newRow("larger than 32 bits") << 4294967297.5 << "4294967297";
        QTest::newRow("the smallest integer") << -9223372036854775808.0 << "-9223372036854776000";
        QTest::newRow("too large for an integer") << 1e300 << "0";
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "0";
        QTest::newRow("not a number") << std::nan("") << "0";
    }

    void frameRateIsTruncatedTowardZero()
    {
        QFETCH(double, fps);
        QFETCH(QString, sent);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        update(f, camera, 0, 0, fps, 0);
        const QString statusBar =
            QStringLiteral(R"({"BPS":0,"FPS":%1,"ImagesFailedCount":0,"ImagesGrabbedCount":0})")
                .arg(sent);
        QCOMPARE(stopCalls(f, camera), stopped(statusBar.toLatin1(), noCounters));
    }

    void dataRateIsTakenAsASignedInteger_data()
    {
        QTest::addColumn<quint64>("bps");
        QTest::addColumn<QString>("sent");
        QTest::newRow("larger than 32 bits") << Q_UINT64_C(5000000000) << "5000000000";
        QTest::newRow("2^53, the last that is exact")
            << Q_UINT64_C(9007199254740992) << "9007199254740992";
        QTest::newRow("beyond that the serialiser rounds")
            << Q_UINT64_C(9223372036854775807) << "9223372036854776000";
        QTest::newRow("2^63 is negative")
            << Q_UINT64_C(9223372036854775808) << "-9223372036854776000";
        QTest::newRow("the largest is -1") << Q_UINT64_C(18446744073709551615) << "-1";
    }

    void dataRateIsTakenAsASignedInteger()
    {
        QFETCH(quint64, bps);
        QFETCH(QString, sent);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        update(f, camera, 0, 0, 0.0, bps);
        const QString statusBar =
            QStringLiteral(R"({"BPS":%1,"FPS":0,"ImagesFailedCount":0,"ImagesGrabbedCount":0})")
                .arg(sent);
        QCOMPARE(stopCalls(f, camera), stopped(statusBar.toLatin1(), noCounters));
    }

    void imageCountsAreWidenedWithTheirSign()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        update(f, camera, 2147483647, -2147483647 - 1, 0.0, 0);
        QCOMPARE(stopCalls(f, camera),
                 stopped(R"({"BPS":0,"FPS":0,"ImagesFailedCount":-2147483648,)"
                         R"("ImagesGrabbedCount":2147483647})",
                         noCounters));
    }

    void updateReplacesAllFour()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        update(f, camera, 100, 10, 50.0, 1000);
        update(f, camera, 1, 0, 0.0, 2);
        QCOMPARE(stopCalls(f, camera),
                 stopped(R"({"BPS":2,"FPS":0,"ImagesFailedCount":0,"ImagesGrabbedCount":1})",
                         noCounters));
    }

    void stopLeavesTheFiguresForTheNextStopAndTheNextSession()
    {
        const char *const figures =
            R"({"BPS":1000,"FPS":50,"ImagesFailedCount":10,"ImagesGrabbedCount":100})";
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        update(f, camera, 100, 10, 50.0, 1000);
        QCOMPARE(stopCalls(f, camera), stopped(figures, noCounters));
        QCOMPARE(stopCalls(f, camera), stopped(figures, noCounters));
        f.stop();
        f.start();
        QCOMPARE(stopCalls(f, camera), stopped(figures, noCounters).replaceInStrings("#1", "#2"));
    }

    void figuresOfACameraWithAUserDefinedNameAreNotFound()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        camera->userName = QStringLiteral("Left of the belt");
        update(f, camera, 100, 10, 50.0, 1000);
        QCOMPARE(stopCalls(f, camera), stopped(noStatistics, noCounters));
    }

    void figuresAreFiledUnderTheIdentityAndLookedUpUnderTheDisplayName()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto other = f.host.makeCamera("B");
        other->userName = QStringLiteral("unused");
        update(f, other, 7, 0, 0.0, 0);
        camera->userName = QStringLiteral("B");
        QCOMPARE(stopCalls(f, camera),
                 stopped(R"({"BPS":0,"FPS":0,"ImagesFailedCount":0,"ImagesGrabbedCount":7})",
                         noCounters));
    }

    void updateOfNoCameraIsDropped()
    {
        TrackingFixture f;
        f.startQuietly();
        QCOMPARE(f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->cameraStatisticUpdated({}, 1, 2, 3.0, 4, {});
        }),
                 QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void updateNumbersNoCamera()
    {
        TrackingFixture f;
        f.startQuietly();
        update(f, f.host.makeCamera("B"), 1, 0, 0.0, 0);
        // Number 0 goes to the first that is connected.
        QCOMPARE(stopCalls(f, connectCamera(f)), stopped(noStatistics, noCounters));
        f.stop();
        QVERIFY(f.analytics.calls().value(0).contains(R"("TotalUsedCameraCount":1})"));
    }

    void figuresOfTwoCamerasAreApart()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        update(f, camera, 1, 0, 0.0, 0);
        update(f, f.host.makeCamera("B"), 2, 0, 0.0, 0);
        QCOMPARE(stopCalls(f, camera),
                 stopped(R"({"BPS":0,"FPS":0,"ImagesFailedCount":0,"ImagesGrabbedCount":1})",
                         noCounters));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, StatusBarStatisticsTest)
#include "StatusBarStatisticsTest.moc"
