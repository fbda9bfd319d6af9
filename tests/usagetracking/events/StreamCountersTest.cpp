// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The counters of the stream that a stop carries.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <functional>
#include <iterator>
#include <stdexcept>

namespace {

const char *const counterNames[] = {
    "@StreamGrabber0/Statistic_Total_Buffer_Count",
    "@StreamGrabber0/Statistic_Failed_Buffer_Count",
    "@StreamGrabber0/Statistic_Total_Packet_Count",
    "@StreamGrabber0/Statistic_Resend_Request_Count",
    "@StreamGrabber0/Statistic_Resend_Packet_Count",
    "@StreamGrabber0/Statistic_Failed_Packet_Count",
    "@StreamGrabber0/Statistic_Missed_Frame_Count",
    "@StreamGrabber0/Statistic_Resynchronization_Count",
};

const char *const noCounters =
    R"({"FailedBufferCount":-1,"FailedPacketCount":-1,"MissedFrameCount":-1,)"
    R"("ResendPacketCount":-1,"ResendRequestCount":-1,"ResynchronizationCount":-1,)"
    R"("TotalBufferCount":-1,"TotalPacketCount":-1})";

const char *const noStatistics =
    R"({"BPS":0,"FPS":0,"ImagesFailedCount":0,"ImagesGrabbedCount":0})";

/// Parameters that are gone after some look-ups of integers.
class VanishingCollection : public FakeParameterCollection
{
public:
    explicit VanishingCollection(FakeParameterService *service)
        : m_service(service)
    {}

    QSharedPointer<ParameterCollection::IIntegerParameter>
    integerParameter(const QString &fullName) const override
    {
        lookUps.append(fullName);
        const auto found = FakeParameterCollection::integerParameter(fullName);
        if (lookUps.size() == vanishesAfter) {
            m_service->collections.clear();
        }
        return found;
    }

    int vanishesAfter = -1;
    mutable QStringList lookUps;

private:
    FakeParameterService *m_service;
};

/// Lets something throw that a stop asks for.
using Breakage = std::function<void(FakeParameterService &, FakeParameterCollection &)>;

QSharedPointer<FakeInteger> counterOf(const FakeParameterCollection &parameters, int index)
{
    return parameters.all.at(index).dynamicCast<FakeInteger>();
}

/// The first fetch, for the mode, is number 1.
void throwAtFetch(FakeParameterService &service, int number)
{
    service.onFetch = [&service, number] {
        if (service.fetches == number) {
            throw std::runtime_error("fetch failed");
        }
    };
}

} // namespace

Q_DECLARE_METATYPE(Breakage)

class StreamCountersTest : public QObject
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

    static QSharedPointer<FakeCamera> connectCamera(TrackingFixture &f)
    {
        const auto camera = f.host.makeCamera("A");
        f.connectCamera(camera);
        return camera;
    }

    static QList<QSharedPointer<FakeInteger>> addCounters(FakeParameterCollection &parameters)
    {
        QList<QSharedPointer<FakeInteger>> counters;
        for (const char *name : counterNames) {
            counters.append(parameters.add<FakeInteger>(name));
            counters.last()->number = counters.size();
        }
        return counters;
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void eightCountersOfTheFirstStream()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        addCounters(*f.host.parametersOf(camera));
        QCOMPARE(stopCalls(f, camera),
                 stopped(noStatistics,
                         R"({"FailedBufferCount":2,"FailedPacketCount":6,"MissedFrameCount":7,)"
                         R"("ResendPacketCount":5,"ResendRequestCount":4,)"
                         R"("ResynchronizationCount":8,"TotalBufferCount":1,)"
                         R"("TotalPacketCount":3})"));
    }

    void countersAre64BitsWide()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto counters = addCounters(*f.host.parametersOf(camera));
        counters.at(0)->number = Q_INT64_C(5000000000);
        counters.at(1)->number = -7;
        QCOMPARE(stopCalls(f, camera),
                 stopped(noStatistics,
                         R"({"FailedBufferCount":-7,"FailedPacketCount":6,"MissedFrameCount":7,)"
                         R"("ResendPacketCount":5,"ResendRequestCount":4,)"
                         R"("ResynchronizationCount":8,"TotalBufferCount":5000000000,)"
                         R"("TotalPacketCount":3})"));
    }

    void counterThatCannotBeReadIsMinusOne()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto counters = addCounters(*f.host.parametersOf(camera));
        counters.at(2)->stateReadable = false;
        QCOMPARE(stopCalls(f, camera),
                 stopped(noStatistics,
                         R"({"FailedBufferCount":2,"FailedPacketCount":6,"MissedFrameCount":7,)"
                         R"("ResendPacketCount":5,"ResendRequestCount":4,)"
                         R"("ResynchronizationCount":8,"TotalBufferCount":1,)"
                         R"("TotalPacketCount":-1})"));
    }

    void counterThatIsUnavailableButReadableIsRead()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto counters = addCounters(*f.host.parametersOf(camera));
        counters.at(0)->stateUnavailable = true;
        QVERIFY(stopCalls(f, camera).at(0).contains(R"("TotalBufferCount":1,)"));
    }

    void counterOfAnotherKindIsMinusOne()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        f.host.parametersOf(camera)->add<FakeParameter>(counterNames[0])->stateText =
            QStringLiteral("5");
        QCOMPARE(stopCalls(f, camera), stopped(noStatistics, noCounters));
    }

    void exceptionOfACounterLeavesTheSlotAndNoStopIsSent_data()
    {
        QTest::addColumn<Breakage>("breakage");
        QTest::addColumn<QString>("caught");
        QTest::newRow("its value")
            << Breakage([](auto &, auto &p) { counterOf(p, 7)->throwing = {"value"}; })
            << "value failed";
        QTest::newRow("whether it can be read")
            << Breakage([](auto &, auto &p) { counterOf(p, 7)->throwing = {"isReadable"}; })
            << "isReadable failed";
        QTest::newRow("its look-up")
            << Breakage([](auto &, auto &p) { p.throwingLookups = {counterNames[7]}; })
            << "look-up failed";
        QTest::newRow("the service, for the first counter")
            << Breakage([](auto &s, auto &) { throwAtFetch(s, 2); }) << "fetch failed";
        QTest::newRow("the service, for the last counter")
            << Breakage([](auto &s, auto &) { throwAtFetch(s, 9); }) << "fetch failed";
    }

    void exceptionOfACounterLeavesTheSlotAndNoStopIsSent()
    {
        QFETCH(Breakage, breakage);
        QFETCH(QString, caught);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        addCounters(*f.host.parametersOf(camera));
        breakage(*f.host.parameterService, *f.host.parametersOf(camera));
        QCOMPARE(stopCalls(f, camera), QStringList());
        QCOMPARE(CatchingApplication::takeCaught(), QStringList(caught));
    }

    void countersAreReadInTheirOrderEachFromACollectionFetchedAfresh()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto vanishing =
            QSharedPointer<VanishingCollection>::create(f.host.parameterService.data());
        addCounters(*vanishing);
        f.host.parameterService->collections.insert(camera.data(), vanishing);
        QCOMPARE(stopCalls(f, camera).size(), 1);
        QCOMPARE(f.host.parameterService->fetches, 9);
        QCOMPARE(vanishing->lookUps, QStringList(std::begin(counterNames), std::end(counterNames)));
    }

    void countersAfterTheLossOfTheCollectionAreMinusOne()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = connectCamera(f);
        const auto vanishing =
            QSharedPointer<VanishingCollection>::create(f.host.parameterService.data());
        addCounters(*vanishing);
        vanishing->vanishesAfter = 3;
        f.host.parameterService->collections.insert(camera.data(), vanishing);
        QCOMPARE(stopCalls(f, camera),
                 stopped(noStatistics,
                         R"({"FailedBufferCount":2,"FailedPacketCount":-1,"MissedFrameCount":-1,)"
                         R"("ResendPacketCount":-1,"ResendRequestCount":-1,)"
                         R"("ResynchronizationCount":-1,"TotalBufferCount":1,)"
                         R"("TotalPacketCount":3})"));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, StreamCountersTest)
#include "StreamCountersTest.moc"
