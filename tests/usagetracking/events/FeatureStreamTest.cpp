// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// How long a feature stream may be, and when it is not read at all.

#include "CatchingApplication.h"
#include "EventCalls.h"
#include "MessageLog.h"
#include "TestMain.h"
#include "TrackingFixture.h"

#include <functional>

namespace {

const char *const modeName = "@CameraDevice/SequencerConfigurationMode";
const char *const enableName = "@CameraDevice/SequenceEnable";

/// Puts a sequencer into the parameters of a camera.
using Preparation = std::function<void(FakeParameterCollection &)>;

QSharedPointer<FakeEnumeration> addMode(FakeParameterCollection &parameters, qint64 number)
{
    const auto mode = parameters.add<FakeEnumeration>(modeName);
    mode->number = number;
    return mode;
}

QSharedPointer<FakeBoolean> addEnable(FakeParameterCollection &parameters, bool on)
{
    const auto enable = parameters.add<FakeBoolean>(enableName);
    enable->on = on;
    return enable;
}

} // namespace

Q_DECLARE_METATYPE(Preparation)

class FeatureStreamTest : public QObject
{
    Q_OBJECT

private:
    static QString record(const char *name, const QString &escapedStream)
    {
        return eventCall("Camera", name,
                         QStringLiteral(R"({"CameraNr":0,"EventCategory":"Camera",)"
                                        R"("EventName":")")
                             + QLatin1String(name) + QStringLiteral(R"(","FeatureStreamStats":")")
                             + escapedStream + QStringLiteral(R"(","Model":"Vendor ab1234-50c"})"));
    }

    static QStringList openAndClose(TrackingFixture &f, const QSharedPointer<FakeCamera> &camera)
    {
        return f.callsFor([&] {
            Q_EMIT f.host.cameraStatus->deviceOpened(camera);
            Q_EMIT f.host.cameraStatus->deviceClosing(camera);
        });
    }

    static void addGuardRow(const char *rule, bool readable, const Preparation &preparation)
    {
        QTest::newRow(rule) << preparation << readable;
    }

    static void addModeRows()
    {
        addGuardRow("mode 0", true, [](auto &p) { addMode(p, 0); });
        addGuardRow("mode 1", false, [](auto &p) { addMode(p, 1); });
        addGuardRow("any other number counts", false, [](auto &p) { addMode(p, -1); });
        addGuardRow("a number whose lower half is zero counts", false,
                    [](auto &p) { addMode(p, Q_INT64_C(0x100000000)); });
        addGuardRow("unavailable mode is not looked at", true,
                    [](auto &p) { addMode(p, 1)->stateUnavailable = true; });
        addGuardRow("mode of another kind is none", true,
                    [](auto &p) { p.template add<FakeInteger>(modeName)->number = 1; });
    }

    static void addEnableRows()
    {
        addGuardRow("sequence disabled", true, [](auto &p) { addEnable(p, false); });
        addGuardRow("sequence enabled", false, [](auto &p) { addEnable(p, true); });
        addGuardRow("unavailable switch is not looked at", true,
                    [](auto &p) { addEnable(p, true)->stateUnavailable = true; });
        addGuardRow("switch of another kind is none", true,
                    [](auto &p) { p.template add<FakeInteger>(enableName)->number = 1; });
        addGuardRow("the second probe does not clear the first one's flag", false, [](auto &p) {
            addMode(p, 1);
            addEnable(p, false);
        });
        addGuardRow("both", false, [](auto &p) {
            addMode(p, 1);
            addEnable(p, true);
        });
    }

    static void addExceptionRows()
    {
        addGuardRow("exception of the mode's value", true,
                    [](auto &p) { addMode(p, 1)->throwing = {"intValue"}; });
        addGuardRow("exception of the mode's availability", true,
                    [](auto &p) { addMode(p, 1)->throwing = {"isUnavailable"}; });
        addGuardRow("exception of the switch's value", true,
                    [](auto &p) { addEnable(p, true)->throwing = {"value"}; });
        addGuardRow("exception of the switch's availability", true,
                    [](auto &p) { addEnable(p, true)->throwing = {"isUnavailable"}; });
        addGuardRow("exception of the mode's look-up", true, [](auto &p) {
            addMode(p, 1);
            p.throwingLookups = {modeName};
        });
        addGuardRow("exception of the switch's look-up", true, [](auto &p) {
            addEnable(p, true);
            p.throwingLookups = {enableName};
        });
        addGuardRow("the second probe runs after the first one's exception", false, [](auto &p) {
            addMode(p, 1)->throwing = {"intValue"};
            addEnable(p, true);
        });
        addGuardRow("an exception of the second probe keeps the first one's flag", false,
                    [](auto &p) {
                        addMode(p, 1);
                        addEnable(p, true)->throwing = {"value"};
                    });
        addGuardRow("the second probe runs after the first one's look-up failed", false,
                    [](auto &p) {
                        addEnable(p, true);
                        p.throwingLookups = {modeName};
                    });
        addGuardRow("a failed look-up of the second probe keeps the first one's flag", false,
                    [](auto &p) {
                        addMode(p, 1);
                        p.throwingLookups = {enableName};
                    });
        addGuardRow("exceptions of both look-ups", true, [](auto &p) {
            p.throwingLookups = {modeName, enableName};
        });
        addGuardRow("exceptions of both", true, [](auto &p) {
            addMode(p, 1)->throwing = {"intValue"};
            addEnable(p, true)->throwing = {"value"};
        });
    }

    static void addRowsOfOtherExceptions()
    {
        addGuardRow("the second probe runs after the first one threw what is no exception class",
                    false, [](auto &p) {
                        const auto mode = addMode(p, 1);
                        mode->throwing = {"intValue"};
                        mode->raise = throwNumber;
                        addEnable(p, true);
                    });
        addGuardRow("what the second probe throws keeps the first one's flag, whatever it is",
                    false, [](auto &p) {
                        addMode(p, 1);
                        const auto enable = addEnable(p, true);
                        enable->throwing = {"value"};
                        enable->raise = throwNumber;
                    });
    }

private Q_SLOTS:
    void cleanup()
    {
        QCOMPARE(CatchingApplication::takeCaught(), QStringList());
    }

    void longestStream_data()
    {
        QTest::addColumn<QString>("stream");
        QTest::addColumn<QString>("sent");
        const auto x = [](int count) { return QString(count, 'x'); };
        QTest::newRow("empty") << QString("") << QString("");
        QTest::newRow("99999 are sent whole") << x(99999) << x(99999);
        QTest::newRow("exactly 100000 are sent whole") << x(100000) << x(100000);
        QTest::newRow("100001 are cut") << x(99999) + "yz" << x(99999) + "y[...cut]";
        QTest::newRow("300000 are cut") << x(300000) << x(100000) + "[...cut]";
        QTest::newRow("the limit counts before escaping")
            << QString(100000, '\n') << QString("\\n").repeated(100000);
        QTest::newRow("the limit counts UTF-16 units")
            << QStringLiteral("\U0001f4f7").repeated(50001)
            << QStringLiteral("\U0001f4f7").repeated(50000) + "[...cut]";
        QTest::newRow("a pair that is cut in half leaves its first half, escaped")
            << x(99999) + QStringLiteral("\U0001f4f7") << x(99999) + "\\ud83d[...cut]";
    }

    void longestStream()
    {
        QFETCH(QString, stream);
        QFETCH(QString, sent);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        f.host.parametersOf(camera)->stream = stream;
        // Not QCOMPARE: it would print the whole stream.
        const QStringList calls = openAndClose(f, camera);
        QCOMPARE(calls.size(), 2);
        QVERIFY(calls.at(0) == record("Opened", sent));
        QVERIFY(calls.at(1) == record("Closed", sent));
    }

    void sequencerGuard_data()
    {
        QTest::addColumn<Preparation>("preparation");
        QTest::addColumn<bool>("readable");
        addGuardRow("no sequencer", true, [](auto &) {});
        addModeRows();
        addEnableRows();
        addExceptionRows();
        addRowsOfOtherExceptions();
    }

    void sequencerGuard()
    {
        QFETCH(Preparation, preparation);
        QFETCH(bool, readable);
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto parameters = f.host.parametersOf(camera);
        parameters->stream = QStringLiteral("whole");
        preparation(*parameters);
        const MessageLog log;
        QCOMPARE(openAndClose(f, camera),
                 QStringList({record("Opened", readable ? "whole" : "[...cut]"),
                              record("Closed", "whole")}));
        QCOMPARE(parameters->streamsRead.size(), readable ? 2 : 1);
        // The observers ask for the availability too, and say when that fails.
        QStringList texts = log.texts();
        texts.removeAll(QStringLiteral("Tracking (createParameterChangedHandler) failed with "
                                       "exception"));
        QCOMPARE(texts, QStringList());
    }

    void guardedOpeningStillAttachesObservers()
    {
        TrackingFixture f;
        f.startQuietly();
        const auto camera = f.host.makeCamera("A");
        const auto enable = addEnable(*f.host.parametersOf(camera), true);
        f.openCamera(camera);
        QCOMPARE(f.callsFor([&] { enable->setValueText("false"); }).size(), 1);
    }
};

NERIX_TEST_MAIN_IN(CatchingApplication, FeatureStreamTest)
#include "FeatureStreamTest.moc"
