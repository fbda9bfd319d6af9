// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Which parameters of an opened camera are observed, and for how long.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <functional>

#include <QWeakPointer>

using ParameterCollection::InterfaceType;

namespace {

const char *const attachingFailed =
    "Tracking (createParameterChangedHandler) failed with exception";

/// A camera whose identity cannot be asked at some of the times.
class FlakyCamera : public FakeCamera
{
public:
    using FakeCamera::FakeCamera;

    QString identity() const override
    {
        if (failures.contains(++questions)) {
            throw std::runtime_error("identity failed");
        }
        return FakeCamera::identity();
    }

    mutable int questions = 0;
    /// Which questions fail, the first being 1.
    QSet<int> failures;
};

} // namespace

using Change = std::function<void(FakeParameterState &)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(FakeException)
Q_DECLARE_METATYPE(ParameterCollection::InterfaceType)

class ParameterObserversTest : public QObject
{
    Q_OBJECT

private:
    /// A camera whose first question for its identity, on opening, and the last, for the record,
    /// frame one question for each observed parameter.
    static QSharedPointer<FlakyCamera> makeFlakyCamera(TrackingFixture &f)
    {
        const auto camera = QSharedPointer<FlakyCamera>::create("A");
        f.host.parameterService->collections.insert(
            camera.data(), QSharedPointer<FakeParameterCollection>::create());
        return camera;
    }

    static QSharedPointer<FakeParameter>
    add(TrackingFixture &f, const QSharedPointer<FakeCamera> &camera, const char *name)
    {
        return f.host.parametersOf(camera)->add<FakeParameter>(name);
    }

    /// How many records a change of \a parameter leads to.
    template <class Fake>
    static int observers(TrackingFixture &f, const QSharedPointer<Fake> &parameter)
    {
        return f.callsFor([&] { parameter->setValueText("1"); }).size();
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void observedParameters_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<int>("count");
        QTest::newRow("a parameter that a user can change") << Change([](auto &) {}) << 1;
        QTest::newRow("an unavailable one gets none")
            << Change([](auto &p) { p.stateUnavailable = true; }) << 0;
        QTest::newRow("one that a user cannot change gets none")
            << Change([](auto &p) { p.stateUserSettable = false; }) << 0;
        QTest::newRow("one that cannot be read now gets one")
            << Change([](auto &p) { p.stateReadable = false; }) << 1;
        QTest::newRow("no value is read, so its exception is none")
            << Change([](auto &p) { p.throwing = {"valueText"}; }) << 1;
    }

    void observedParameters()
    {
        QFETCH(Change, change);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = add(f, camera, "@CameraDevice/Gain");
        change(*gain);
        f.openCamera(camera);
        QTEST(observers(f, gain), "count");
    }

    void everyTypeButACategoryIsObserved_data()
    {
        QTest::addColumn<InterfaceType>("type");
        QTest::addColumn<int>("count");
        for (int type = 0; type <= 11; ++type) {
            QTest::addRow("type code %d", type) << InterfaceType(type) << (type == 8 ? 0 : 1);
        }
    }

    void everyTypeButACategoryIsObserved()
    {
        QFETCH(InterfaceType, type);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto parameter = add(f, camera, "@CameraDevice/Gain");
        parameter->stateType = type;
        f.openCamera(camera);
        QTEST(observers(f, parameter), "count");
    }

    void everyTreeOfTheCollectionIsObserved()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto stream = add(f, camera, "@StreamGrabber0/MaxNumBuffer");
        f.openCamera(camera);
        QCOMPARE(observers(f, stream), 1);
    }

    void eachParameterHasAnObserverOfItsOwn()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto first = add(f, camera, "@CameraDevice/First");
        const auto second = add(f, camera, "@CameraDevice/Second");
        f.openCamera(camera);
        const QStringList calls = f.callsFor([&] {
            second->setValueText("1");
            first->setValueText("2");
        });
        QCOMPARE(calls.size(), 2);
        QVERIFY(calls.at(0).startsWith("ruiTrackEventText(#1 | ParameterValueChanged | Second | "));
        QVERIFY(calls.at(1).startsWith("ruiTrackEventText(#1 | ParameterValueChanged | First | "));
    }

    void changesBeforeTheOpeningAreNotSeen()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = add(f, camera, "@CameraDevice/Gain");
        f.connectCamera(camera);
        QCOMPARE(observers(f, gain), 0);
    }

    void exceptionOfTheListEndsTheAttachingAndIsLogged()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = add(f, camera, "@CameraDevice/Gain");
        f.host.parametersOf(camera)->listThrows = true;
        QTest::ignoreMessage(QtDebugMsg, attachingFailed);
        const QStringList calls =
            f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); });
        QCOMPARE(calls.size(), 1);
        QVERIFY(calls.at(0).startsWith("ruiTrackEventText(#1 | Camera | Opened | "));
        QCOMPARE(observers(f, gain), 0);
    }

    void exceptionOfAnyKindOfTheListIsLogged()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.host.parametersOf(camera)->listThrows = true;
        f.host.parametersOf(camera)->raise = throwNumber;
        QTest::ignoreMessage(QtDebugMsg, attachingFailed);
        QCOMPARE(f.callsFor([&] { Q_EMIT f.host.cameraStatus->deviceOpened(camera); }).size(), 1);
    }

    void exceptionOfATestEndsTheLoopAndIsLogged_data()
    {
        QTest::addColumn<QString>("operation");
        QTest::newRow("availability") << "isUnavailable";
        QTest::newRow("type") << "interfaceType";
        QTest::newRow("eligibility") << "isUserSettable";
    }

    void exceptionOfATestEndsTheLoopAndIsLogged()
    {
        QFETCH(QString, operation);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto before = add(f, camera, "@CameraDevice/Before");
        const auto broken = add(f, camera, "@CameraDevice/Broken");
        const auto after = add(f, camera, "@CameraDevice/After");
        broken->throwing = {operation};
        QTest::ignoreMessage(QtDebugMsg, attachingFailed);
        f.openCamera(camera);
        QCOMPARE(observers(f, before), 1);
        QCOMPARE(observers(f, broken), 0);
        QCOMPARE(observers(f, after), 0);
    }

    void testBehindTheOneThatExcludesIsNotMade_data()
    {
        QTest::addColumn<Change>("change");
        QTest::newRow("unavailable: neither type nor eligibility") << Change([](auto &p) {
            p.stateUnavailable = true;
            p.throwing = {"interfaceType", "isUserSettable"};
        });
        QTest::newRow("category: no eligibility") << Change([](auto &p) {
            p.stateType = ParameterCollection::InterfaceCategory;
            p.throwing = {"isUserSettable"};
        });
    }

    void testBehindTheOneThatExcludesIsNotMade()
    {
        QFETCH(Change, change);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto excluded = add(f, camera, "@CameraDevice/Excluded");
        const auto after = add(f, camera, "@CameraDevice/After");
        change(*excluded);
        const MessageLog log;
        f.openCamera(camera);
        QCOMPARE(observers(f, excluded), 0);
        QCOMPARE(observers(f, after), 1);
        QCOMPARE(log.texts(), QStringList());
    }

    void failureToNumberTheCameraCostsOnlyThatParameter()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeFlakyCamera(f);
        const auto before = add(f, camera, "@CameraDevice/Before");
        const auto broken = add(f, camera, "@CameraDevice/Broken");
        const auto after = add(f, camera, "@CameraDevice/After");
        camera->failures = {3};
        QTest::ignoreMessage(QtDebugMsg, "Tracking couldn't connect to Broken");
        f.openCamera(camera);
        QCOMPARE(observers(f, before), 1);
        QCOMPARE(observers(f, broken), 0);
        QCOMPARE(observers(f, after), 1);
    }

    void failureToNameAParameterCostsOnlyThatParameter_data()
    {
        QTest::addColumn<FakeException>("exception");
        QTest::newRow("an exception") << FakeException(throwParameterException);
        QTest::newRow("what is no exception class") << FakeException(throwNumber);
    }

    void failureToNameAParameterCostsOnlyThatParameter()
    {
        QFETCH(FakeException, exception);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto broken = add(f, camera, "@CameraDevice/Broken");
        const auto after = add(f, camera, "@CameraDevice/After");
        broken->throwing = {"name"};
        broken->raise = exception;
        QTest::ignoreMessage(QtDebugMsg, "Tracking couldn't connect to ");
        f.openCamera(camera);
        QCOMPARE(observers(f, broken), 0);
        QCOMPARE(observers(f, after), 1);
    }

    void everyFailedParameterIsLogged()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeFlakyCamera(f);
        add(f, camera, "@CameraDevice/First");
        add(f, camera, "@CameraDevice/Second");
        camera->failures = {2, 3};
        QTest::ignoreMessage(QtDebugMsg, "Tracking couldn't connect to First");
        QTest::ignoreMessage(QtDebugMsg, "Tracking couldn't connect to Second");
        f.openCamera(camera);
    }

    void theCameraIsNumberedAfreshForEveryParameter()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = makeFlakyCamera(f);
        add(f, camera, "@CameraDevice/First");
        add(f, camera, "@CameraDevice/Category")->stateType =
            ParameterCollection::InterfaceCategory;
        add(f, camera, "@CameraDevice/Second");
        f.openCamera(camera);
        // Opening, two parameters, record.
        QCOMPARE(camera->questions, 4);
    }

    void closingKeepsTheObservers()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = add(f, camera, "@CameraDevice/Gain");
        f.openCamera(camera);
        f.emitFromHost([&] {
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
            Q_EMIT f.host.cameraStatus->deviceDisconnected(camera);
        });
        QCOMPARE(observers(f, gain), 1);
    }

    void reopeningDoublesTheRecordsIfTheHostKeepsTheParameters()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = add(f, camera, "@CameraDevice/Gain");
        f.openCamera(camera);
        f.emitFromHost([&] { Q_EMIT f.host.cameraStatus->deviceClosing(camera); });
        f.openCamera(camera);
        QCOMPARE(observers(f, gain), 2);
        f.openCamera(camera);
        QCOMPARE(observers(f, gain), 3);
    }

    void reopeningKeepsTheRecordsSingleIfTheHostMakesNewParameters()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto old = add(f, camera, "@CameraDevice/Gain");
        f.openCamera(camera);
        f.host.parameterService->collections.insert(
            camera.data(), QSharedPointer<FakeParameterCollection>::create());
        const auto fresh = add(f, camera, "@CameraDevice/Gain");
        f.openCamera(camera);
        QCOMPARE(observers(f, fresh), 1);
        QCOMPARE(observers(f, old), 1);
    }

    void observersKeepTheirParametersAliveUntilTheEndOfTheSession()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const QWeakPointer<FakeParameter> gain = add(f, camera, "@CameraDevice/Gain");
        f.openCamera(camera);
        f.host.parameterService->collections.clear();
        QVERIFY(gain);
        f.stop();
        QVERIFY(!gain);
    }

    void theProviderTakesItsObserversWithIt()
    {
        QWeakPointer<FakeParameter> gain;
        {
            TrackingFixture f;
            f.startQuietly();
            const auto camera = f.host.makeCamera("A");
            gain = add(f, camera, "@CameraDevice/Gain");
            f.openCamera(camera);
            f.host.parameterService->collections.clear();
            QVERIFY(gain);
        }
        QVERIFY(!gain);
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, ParameterObserversTest)
#include "ParameterObserversTest.moc"
