// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QRegularExpression>
#include <QTest>

// A camera that is unplugged and plugged in again, over and over, beside one that stays.
class VanishingCameraTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testTwentyRoundsAreSeenOnceEachUnderOneNumber();
};

namespace {

constexpr int rounds = 20;

const char script[] = "cameras.waitFor('XQZ-2000', 60000);\n"
                      "for (var round = 1; round <= 20; ++round) {\n"
                      "    print('vanish ' + round);\n"
                      "    cameras.waitForGone('XQZ-2000', 60000);\n"
                      "    print('return ' + round);\n"
                      "    cameras.waitFor('XQZ-2000', 60000);\n"
                      "}\n"
                      "cameras.open('Ostrand-XQZ-2000-A-7');\n"
                      "cameras.close('Ostrand-XQZ-2000-A-7');\n"
                      "print('seen ' + cameras.takeEvents().filter(function (entry) {\n"
                      "    return entry.model === 'XQZ-2000';\n"
                      "}).map(function (entry) { return entry.event; }).join(' '));\n";

// The signals of the simulated hand on the plug.
bool isDone(CSimulatorProcess &camera, const QString &line)
{
    if (line.startsWith("vanish ")) {
        return camera.command("vanish") == "vanished";
    }
    if (line.startsWith("return ")) {
        return camera.command("return") == "returned";
    }
    return true;
}

QStringList numbersOf(const QStringList &events)
{
    QStringList numbers;
    for (const QString &event : events) {
        numbers += QRegularExpression("\"CameraNr\":(-?[0-9]+)").match(event).captured(1);
    }
    numbers.removeDuplicates();
    return numbers;
}

} // namespace

void VanishingCameraTest::testTwentyRoundsAreSeenOnceEachUnderOneNumber()
{
    CSimulatorProcess vanishing({"--serial", "A-7"});
    QVERIFY2(vanishing.start(), qPrintable(vanishing.errorText()));
    CSimulatorProcess staying({"--address", "127.0.0.2", "--model", "ab1234-50c"});
    const bool isAlone = qgetenv("NERIX_NETWORK") == "loopback";
    QVERIFY2(isAlone || staying.start(), qPrintable(staying.errorText()));

    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    int refused = 0;
    connect(&viewer, &CViewerProcess::lineWasPrinted, this,
            [&](const QString &line) { refused += isDone(vanishing, line) ? 0 : 1; });
    QCOMPARE(viewer.run(script), 0);
    QCOMPARE(refused, 0);

    QStringList expected = {"connected"};
    for (int round = 0; round < rounds; ++round) {
        expected += QStringList({"disconnected", "connected"});
    }
    expected += QStringList({"opened", "closing"});
    QCOMPARE(viewer.printed().last(), "seen " + expected.join(' '));

    const QStringList events = viewer.storedEvents("Camera").filter("Ostrand ***-2000");
    QCOMPARE(events.filter("\"EventName\":\"Connected\"").size(), rounds + 1);
    QCOMPARE(events.filter("\"EventName\":\"Removed\"").size(), rounds);
    QCOMPARE(numbersOf(events).size(), 1);
    const QString counts = isAlone ? R"("FinalCameraCount":1,"TotalUsedCameraCount":1})"
                                   : R"("FinalCameraCount":2,"TotalUsedCameraCount":2})";
    QVERIFY2(viewer.storedEvents().last().endsWith(counts),
             qPrintable(viewer.storedEvents().last()));
}

QTEST_GUILESS_MAIN(VanishingCameraTest)

#include "VanishingCameraTest.moc"
