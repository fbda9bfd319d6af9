// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What an observer tells of the values that are set.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "TestMain.h"
#include "TrackingFixture.h"

class ParameterChangesTest : public QObject
{
    Q_OBJECT

private:
    /// The record of a change, its two values in their escaped form.
    static QString change(const QString &initial, const QString &value, int number = 0,
                          int session = 1)
    {
        return eventCall("ParameterValueChanged", "Gain",
                         QStringLiteral(R"({"CameraNr":%1,)"
                                        R"("EventCategory":"ParameterValueChanged",)"
                                        R"("EventName":"Gain","InitialValue":"%2",)"
                                        R"("ParameterName":"Gain","ParameterValue":"%3"})")
                             .arg(number)
                             .arg(initial, value),
                         session);
    }

    /// Sets values from the host's thread. @return the calls that it led to.
    static QStringList set(TrackingFixture &f, const QSharedPointer<FakeInteger> &parameter,
                           const QStringList &values)
    {
        return f.callsFor([&] {
            for (const QString &value : values) {
                parameter->setValueText(value);
            }
        });
    }

    /// Opens \a camera with one parameter, "Gain".
    static QSharedPointer<FakeInteger> openWithGain(TrackingFixture &f,
                                                    const QSharedPointer<FakeCamera> &camera)
    {
        const auto gain = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/Gain");
        f.openCamera(camera);
        return gain;
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void theFirstInitialValueIsEmptyAndTheNextIsTheValueBefore()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        QCOMPARE(set(f, gain, {"10", "20"}),
                 QStringList({"ruiTrackEventText(#1 | ParameterValueChanged | Gain | "
                              R"({"CameraNr":0,"EventCategory":"ParameterValueChanged",)"
                              R"("EventName":"Gain","InitialValue":"","ParameterName":"Gain",)"
                              R"("ParameterValue":"10"} | ))",
                              "ruiTrackEventText(#1 | ParameterValueChanged | Gain | "
                              R"({"CameraNr":0,"EventCategory":"ParameterValueChanged",)"
                              R"("EventName":"Gain","InitialValue":"10","ParameterName":"Gain",)"
                              R"("ParameterValue":"20"} | ))"}));
    }

    void settingTheSameValueTwiceGivesTwoRecords()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        QCOMPARE(set(f, gain, {"10", "10"}), QStringList({change("", "10"), change("10", "10")}));
    }

    void valueThatTheParameterHadBeforeIsNotKnown()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        gain->stateText = QStringLiteral("5");
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10")));
        gain->stateText = QStringLiteral("15");
        QCOMPARE(set(f, gain, {"20"}), QStringList(change("10", "20")));
    }

    void theRecordTellsTheTextOfTheSignalNotTheValueOfTheDevice()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        QCOMPARE(f.callsFor([&] {
            Q_EMIT gain->parameterValueAboutToBeSet(QStringLiteral("11"));
            gain->stateText = QStringLiteral("12");
        }),
                 QStringList(change("", "11")));
    }

    void valueThatTheDeviceRefusesAfterwardsIsToldAllTheSame()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        gain->throwing = {"valueText", "value"};
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10")));
    }

    void longestValue_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("sent");
        const auto x = [](int count) { return QString(count, 'x'); };
        QTest::newRow("empty") << QString("") << QString("");
        QTest::newRow("128 are sent whole") << x(127) + "y" << x(127) + "y";
        QTest::newRow("129 are cut without a mark") << x(127) + "yz" << x(127) + "y";
        QTest::newRow("200 are cut without a mark") << x(200) << x(128);
        QTest::newRow("the limit counts before escaping")
            << QString(129, '"') << QString("\\\"").repeated(128);
        QTest::newRow("the limit counts UTF-16 units") << QStringLiteral("\U0001f4f7").repeated(100)
                                                       << QStringLiteral("\U0001f4f7").repeated(64);
        QTest::newRow("a pair that is cut in half leaves its first half, escaped")
            << x(127) + QStringLiteral("\U0001f4f7") << x(127) + "\\ud83d";
        QTest::newRow("values are not filtered")
            << QString("XQZ C:\\dir/file") << QString("XQZ C:\\\\dir/file");
    }

    void longestValue()
    {
        QFETCH(QString, value);
        QFETCH(QString, sent);
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        QCOMPARE(set(f, gain, {value, "next"}),
                 QStringList({change("", sent), change(sent, "next")}));
    }

    void theNameIsTakenOnceWhenTheObserverIsMade()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        gain->stateFullName = QStringLiteral("@CameraDevice/Renamed");
        gain->throwing = {"name"};
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10")));
    }

    void nameIsNotFiltered()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto odd = f.host.parametersOf(camera)->add<FakeInteger>("@CameraDevice/XQZ\"\\");
        f.openCamera(camera);
        QCOMPARE(set(f, odd, {"1"}),
                 oneEvent("ParameterValueChanged", "XQZ\"\\",
                          "{\"CameraNr\":0,\"EventCategory\":\"ParameterValueChanged\","
                          "\"EventName\":\"XQZ\\\"\\\\\",\"InitialValue\":\"\","
                          "\"ParameterName\":\"XQZ\\\"\\\\\",\"ParameterValue\":\"1\"}"));
    }

    void cameraThatWasNeverConnectedHasTheNumberThatItsOpeningGave()
    {
        TrackingFixture f;
        f.startQuietly();
        f.connectCamera(f.host.makeCamera("A"));
        const auto gain = openWithGain(f, f.host.makeCamera("B"));
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10", 1)));
    }

    void theNumberOfTheCameraIsTakenOnceWhenTheObserverIsMade()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = openWithGain(f, camera);
        f.connectCamera(f.host.makeCamera("B"));
        camera->cameraIdentity = QStringLiteral("B");
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10", 0)));
    }

    void unknownCameraHasNumberMinusOne()
    {
        TrackingFixture f;
        f.startQuietly();
        // The opening numbers the camera, but asks for the identity anew for each parameter.
        class FickleCamera : public FakeCamera
        {
        public:
            using FakeCamera::FakeCamera;
            QString identity() const override
            {
                return QString::number(++questions);
            }
            mutable int questions = 0;
        };
        const auto camera = QSharedPointer<FickleCamera>::create("A");
        f.host.parameterService->collections.insert(
            camera.data(), QSharedPointer<FakeParameterCollection>::create());
        const auto gain = openWithGain(f, camera);
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10", -1)));
    }

    void theSessionIsTheOneInWhichTheObserverWasMade()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        f.start();
        QCOMPARE(set(f, gain, {"10"}), QStringList(change("", "10", 0, 1)));
        const auto later = openWithGain(f, f.host.makeCamera("B"));
        // Both starts have subscribed, so there are two observers.
        QCOMPARE(set(f, later, {"10"}),
                 QStringList({change("", "10", 1, 2), change("", "10", 1, 2)}));
    }

    void observersOfOneParameterKeepTheirOwnLastValue()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = openWithGain(f, camera);
        set(f, gain, {"10"});
        f.openCamera(camera);
        QCOMPARE(set(f, gain, {"20"}), QStringList({change("10", "20"), change("", "20")}));
        QCOMPARE(set(f, gain, {"30"}), QStringList({change("20", "30"), change("20", "30")}));
    }

    void parametersOfOneNameOnTwoCamerasAreApart()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto first = openWithGain(f, f.host.makeCamera("A"));
        const auto second = openWithGain(f, f.host.makeCamera("B"));
        QCOMPARE(set(f, first, {"10"}), QStringList(change("", "10", 0)));
        QCOMPARE(set(f, second, {"20"}), QStringList(change("", "20", 1)));
        QCOMPARE(set(f, first, {"30"}), QStringList(change("10", "30", 0)));
    }

    void changesAndOtherEventsComeInTheOrderInWhichTheyHappened()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto gain = openWithGain(f, camera);
        const QStringList calls = f.callsFor([&] {
            gain->setValueText("1");
            Q_EMIT f.host.featureTree->currentChanged(gain);
            gain->setValueText("2");
        });
        QCOMPARE(calls, QStringList() << change("", "1")
                                      << oneEvent("FeatureChosen", "Gain",
                                                  R"({"EventCategory":"FeatureChosen",)"
                                                  R"("EventName":"Gain"})")
                                      << change("1", "2"));
    }

    void changeInTheTrackingThreadIsToldAtOnce()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        f.analytics.takeCalls();
        QStringList toldAtOnce;
        f.inTrackingThread([&] {
            gain->setValueText("1");
            toldAtOnce = f.analytics.takeCalls();
        });
        QCOMPARE(toldAtOnce, QStringList(change("", "1")));
    }

    void observersLiveInTheTrackingThread()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto gain = openWithGain(f, f.host.makeCamera("A"));
        f.analytics.takeCalls();
        f.emitFromHost([&] { gain->setValueText("1"); });
        QCOMPARE(f.analytics.callsIn(&f.trackingThread), QStringList(change("", "1")));
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, ParameterChangesTest)
#include "ParameterChangesTest.moc"
