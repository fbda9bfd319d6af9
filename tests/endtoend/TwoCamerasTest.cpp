// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QRegularExpression>
#include <QTest>

// Two cameras at work at once: what is stored agrees with what the script did, camera by camera.
// NERIX_LOAD_SECONDS sets how long they work.
class TwoCamerasTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testEveryEventIsStoredOnce();
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
function open(camera) { cameras.open(camera); did(camera, "Opened"); }
function close(camera) { cameras.close(camera); did(camera, "Closed"); }
function start(camera) { grab.start(camera); did(camera, "Started"); }
function stop(camera) { grab.stop(camera); did(camera, "Stopped"); }
function set(camera, value) {
    features.set(camera, "Gain", String(value % 10));
    did(camera, "Gain");
}
cameras.waitFor(2, 60000);
names.forEach(open);
names.forEach(start);
var end = Date.now() + SECONDS * 1000;
for (var round = 0; Date.now() < end; ++round) {
    for (var i = 0; i < 100; ++i) {
        set(names[0], i);
        set(names[1], i);
    }
    features.select(names[round % 2], round % 3 ? "Gain" : "ExposureTime");
    did("any", round % 3 ? "Gain" : "ExposureTime");
    print("simulator: " + (round % 2) + " loss " + (round % 4) / 200);
    var busy = names[round % 2];
    stop(busy);
    close(busy);
    open(busy);
    start(busy);
}
names.forEach(stop);
names.forEach(close);
for (var key in done) {
    print("did " + key + " " + done[key]);
}
)JS";

// "CAMERA WHAT" by the number of the camera, as the script counts.
QMap<QString, int> countsOf(const QStringList &events, const QStringList &camerasByNumber)
{
    QMap<QString, int> counts;
    for (const QString &event : events) {
        const QString category = event.section('\t', 0, 0);
        const QString name = event.section('\t', 1, 1);
        const QRegularExpressionMatch number =
            QRegularExpression("\"CameraNr\":([0-9]+)").match(event);
        if (category == "FeatureChosen") {
            ++counts["any " + name];
        } else if (number.hasMatch() && name != "Connected" && name != "Failed") {
            ++counts[camerasByNumber.value(number.captured(1).toInt()) + ' ' + name];
        }
    }
    return counts;
}

} // namespace

void TwoCamerasTest::testEveryEventIsStoredOnce()
{
    CSimulatorProcess first({"--address", "127.0.0.1", "--serial", "1"});
    CSimulatorProcess second({"--address", "127.0.0.2", "--serial", "2"});
    QVERIFY2(first.start(), qPrintable(first.errorText()));
    QVERIFY2(second.start(), qPrintable(second.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    connect(&viewer, &CViewerProcess::lineWasPrinted, this, [&](const QString &line) {
        if (line.startsWith("simulator: ")) {
            CSimulatorProcess &camera = line.section(' ', 1, 1) == "0" ? first : second;
            camera.command(line.section(' ', 2));
        }
    });
    viewer.start(QString(script).replace("SECONDS", QString::number(loadSeconds())));
    QVERIFY2(viewer.finish() == 0, qPrintable(viewer.logged().join('\n')));

    QMap<QString, int> done;
    for (const QString &line : viewer.printed().filter(QRegularExpression("^did "))) {
        done.insert(line.section(' ', 1, 2), line.section(' ', 3).toInt());
    }
    QVERIFY(!done.isEmpty());
    for (auto what = done.cbegin(); what != done.cend(); ++what) {
        qInfo("%s: %d in %d s", qPrintable(what.key()), what.value(), loadSeconds());
    }
    // A camera's number is the place in which it was first seen.
    QStringList byNumber{"Ostrand-XQZ-2000-1", "Ostrand-XQZ-2000-2"};
    QMap<QString, int> stored = countsOf(viewer.storedEvents(), byNumber);
    if (stored != done) {
        std::reverse(byNumber.begin(), byNumber.end());
        stored = countsOf(viewer.storedEvents(), byNumber);
    }
    // Opening a camera again makes new parameters, so each value is still reported once.
    QCOMPARE(stored, done);
}

QTEST_GUILESS_MAIN(TwoCamerasTest)
#include "TwoCamerasTest.moc"
