// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CEventFollower.h"
#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <algorithm>

#include <QMap>
#include <QRegularExpression>
#include <QTest>

// Two cameras at work at once while 200 parameters are set in each second: the events agree with
// what the script did, camera by camera. NERIX_LOAD_SECONDS sets how long they work.
//
// The events are followed as they come: of more than 10,000 the library gives up the oldest.
class TwoCamerasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEveryEventComesOnce();
};

namespace {

int loadSeconds()
{
    bool isSet = false;
    const int seconds = qEnvironmentVariableIntValue("NERIX_LOAD_SECONDS", &isSet);
    return isSet ? seconds : 5;
}

// Prints "did CAMERA WHAT COUNT" for all that it did.
const char script[] = R"JS(
var names = ["Ostrand-XQZ-2000-1", "Ostrand-XQZ-2000-2"];
var done = {};
function did(camera, what) {
    done[camera + " " + what] = (done[camera + " " + what] || 0) + 1;
}
// Changes are observed from when the opening was heard of. Nobody waits for that, but a closing is
// waited for, and it is heard of after all that was before: that of a third camera serves here.
var third = "Ostrand-zz-1-3";
function waitUntilHeard() { cameras.open(third); cameras.close(third); }
function open(camera) { cameras.open(camera); did(camera, "Opened"); waitUntilHeard(); }
function close(camera) { cameras.close(camera); did(camera, "Closed"); }
function start(camera) { grab.start(camera); did(camera, "Started"); }
function stop(camera) { grab.stop(camera); did(camera, "Stopped"); }
function set(camera, value) {
    features.set(camera, "Gain", String(value % 10));
    did(camera, "Gain");
}
var begin;
var end;
var sets = 0;
function setAllThatIsDue() {
    do {
        set(names[0], sets / 2);
        set(names[1], sets / 2);
        sets += 2;
    } while (sets < 200 * (Math.min(Date.now(), end) - begin) / 1000);
}
cameras.waitFor(3, 60000);
names.forEach(open);
names.forEach(start);
begin = Date.now();
end = begin + SECONDS * 1000;
for (var round = 0; Date.now() < end; ++round) {
    setAllThatIsDue();
    features.select(names[round % 2], round % 3 ? "Gain" : "ExposureTime");
    did("any", round % 3 ? "Gain" : "ExposureTime");
    print("simulator: " + (round % 2) + " loss " + (round % 4) / 200);
    var busy = names[round % 2];
    stop(busy);
    close(busy);
    open(busy);
    start(busy);
}
setAllThatIsDue();
names.forEach(stop);
names.forEach(close);
for (var key in done) {
    print("did " + key + " " + done[key]);
}
)JS";

int numberOf(const QString &event)
{
    const auto number = QRegularExpression("\"CameraNr\":([0-9]+)").match(event);
    return number.hasMatch() ? number.captured(1).toInt() : -1;
}

// The numbers of the two cameras, which are of one model, as they were seen first.
QList<int> numbersOfTheTwo(const QStringList &events)
{
    QList<int> numbers;
    for (const QString &event : events.filter("\"EventName\":\"Connected\"")) {
        if (event.contains("\"Model\":\"Ostrand ***-2000\"")) {
            numbers.append(numberOf(event));
        }
    }
    return numbers;
}

// "CAMERA WHAT" as the script counts; \a numbers are those of the cameras 1 and 2.
QMap<QString, int> countsOf(const QStringList &events, const QList<int> &numbers)
{
    QMap<QString, int> counts;
    for (const QString &event : events) {
        const QString category = event.section('\t', 0, 0);
        const QString name = event.section('\t', 1, 1);
        const int camera = numbers.indexOf(numberOf(event)) + 1;
        if (category == "FeatureChosen") {
            ++counts["any " + name];
        } else if (camera > 0 && name != "Connected" && name != "Failed") {
            ++counts[QString("Ostrand-XQZ-2000-%1 %2").arg(camera).arg(name)];
        }
    }
    return counts;
}

} // namespace

void TwoCamerasTest::testEveryEventComesOnce()
{
    CSimulatorProcess first({"--address", "127.0.0.1", "--serial", "1"});
    CSimulatorProcess second({"--address", "127.0.0.2", "--serial", "2"});
    QVERIFY2(first.start(), qPrintable(first.errorText()));
    QVERIFY2(second.start(), qPrintable(second.errorText()));
    CSimulatorProcess third({"--address", "127.0.0.3", "--serial", "3", "--model", "zz-1"});
    QVERIFY2(third.start(), qPrintable(third.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    connect(&viewer, &CViewerProcess::lineWasPrinted, this, [&](const QString &line) {
        if (line.startsWith("simulator: ")) {
            CSimulatorProcess &camera = line.section(' ', 1, 1) == "0" ? first : second;
            camera.command(line.section(' ', 2));
        }
    });
    CEventFollower follower(viewer.libraryFolder());
    viewer.start(QString(script).replace("SECONDS", QString::number(loadSeconds())));
    QVERIFY2(viewer.finish() == 0, qPrintable(viewer.logged().join('\n')));
    QVERIFY(follower.waitForEvent("GeneralEvent", "SessionEnded"));

    QMap<QString, int> done;
    for (const QString &line : viewer.printed().filter(QRegularExpression("^did "))) {
        done.insert(line.section(' ', 1, 2), line.section(' ', 3).toInt());
    }
    QVERIFY(!done.isEmpty());
    for (auto what = done.cbegin(); what != done.cend(); ++what) {
        qInfo("%s: %d in %d s", qPrintable(what.key()), what.value(), loadSeconds());
    }
    qInfo("%d sets a second",
          (done.value("Ostrand-XQZ-2000-1 Gain") + done.value("Ostrand-XQZ-2000-2 Gain"))
              / loadSeconds());
    const QStringList events = follower.events();
    QList<int> numbers = numbersOfTheTwo(events);
    QCOMPARE(numbers.size(), 2);
    QMap<QString, int> seen = countsOf(events, numbers);
    if (seen != done) {
        std::reverse(numbers.begin(), numbers.end()); // camera 2 was seen first
        seen = countsOf(events, numbers);
    }
    for (auto what = done.cbegin(); what != done.cend(); ++what) {
        if (seen.value(what.key()) != what.value()) {
            qWarning("%s: %d events", qPrintable(what.key()), seen.value(what.key()));
        }
    }
    // Opening a camera again makes new parameters, so each value is still reported once.
    QCOMPARE(seen, done);
}

QTEST_GUILESS_MAIN(TwoCamerasTest)
#include "TwoCamerasTest.moc"
