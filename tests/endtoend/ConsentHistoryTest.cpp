// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QTest>

// The user's answers over several runs: what is tracked, and what the settings keep.
class ConsentHistoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testUserMustAnswerBeforeLeavingTheWelcomeScreen();
    void testYesInAFirstRunBeginsTheSession();
    void testNoInAFirstRunStoresNothing();
    void testAnswerWithoutApplyIsNoAnswer();
    void testYesIsKeptForTheNextRun();
    void testWithdrawalDeletesWhatWasStoredAndLeavesItsRecord();
    void testAnswersAreWrittenOnlyAtAnOrderlyEnd();
};

namespace {

const QByteArray yes = "[UsageTracking]\nOptInEnabled=true\nOptInSelected=true\n";
const QByteArray no = "[UsageTracking]\nOptInEnabled=false\nOptInSelected=true\n";
const QByteArray noAnswer = "[UsageTracking]\nOptInEnabled=false\nOptInSelected=false\n";

const QString sessionStarted = "GeneralEvent\tSessionStarted\t"
                               R"({"EventCategory":"GeneralEvent","EventName":"SessionStarted"})";
const QString sessionEnded =
    "GeneralEvent\tSessionEnded\t"
    R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded","FinalCameraCount":0,)"
    R"("TotalUsedCameraCount":0})";

const char session[] = "var camera = cameras.waitFor(1, 60000)[0];\n"
                       "cameras.open(camera);\n"
                       "cameras.close(camera);\n";

// Without what the search for cameras stored if the session lasted long enough.
QStringList sessionEvents(const CViewerProcess &viewer)
{
    return viewer.storedEvents().filter("Session");
}

bool hasStarted(const QStringList &events)
{
    return events.contains(sessionStarted);
}

} // namespace

void ConsentHistoryTest::testUserMustAnswerBeforeLeavingTheWelcomeScreen()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("print(welcome.visible(), welcome.currentTab());\n"
                        "print(welcome.applyNeeded(), welcome.close());\n"
                        "consent.answer('no');\n"
                        "print(welcome.applyNeeded(), welcome.close());\n"
                        "consent.apply();\n"
                        "print(welcome.applyNeeded(), welcome.close(), welcome.visible());"),
             0);
    QCOMPARE(viewer.printed(), QStringList({"true UsageTracking.NerixWelcome.DataPrivacy",
                                            "true false", "true false", "false true false"}));
}

void ConsentHistoryTest::testYesInAFirstRunBeginsTheSession()
{
    CViewerProcess viewer;
    viewer.start("consent.answer('yes');\nconsent.apply();\nsleep(600000);");
    QVERIFY(viewer.waitForEvents(hasStarted));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(sessionEvents(viewer), QStringList({sessionStarted, sessionEnded}));
    QCOMPARE(viewer.settings(), yes);
}

void ConsentHistoryTest::testNoInAFirstRunStoresNothing()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    QCOMPARE(viewer.run(QString("consent.answer('no');\nconsent.apply();\n") + session), 0);
    QCOMPARE(viewer.libraryFiles(), QStringList());
    QCOMPARE(viewer.settings(), no);
}

void ConsentHistoryTest::testAnswerWithoutApplyIsNoAnswer()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("consent.answer('yes');\n"
                        "var s = consent.state(); print(s.answered, s.answer, s.applyEnabled);"),
             0);
    QCOMPARE(viewer.printed(), QStringList({"false yes true"}));
    QCOMPARE(viewer.libraryFiles(), QStringList());
    QCOMPARE(viewer.settings(), noAnswer);
}

void ConsentHistoryTest::testYesIsKeptForTheNextRun()
{
    CViewerProcess viewer;
    viewer.start("consent.answer('yes');\nconsent.apply();\nsleep(600000);");
    QVERIFY(viewer.waitForEvents(hasStarted));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);

    viewer.start("var s = consent.state(); print(s.answered, s.answer, s.applyEnabled);\n"
                 "print(welcome.applyNeeded());\n"
                 "sleep(600000);");
    QVERIFY(viewer.waitForEvents(
        [](const QStringList &events) { return events.count(sessionStarted) == 2; }));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(viewer.printed(), QStringList({"true yes false", "false"}));
    QCOMPARE(sessionEvents(viewer),
             QStringList({sessionStarted, sessionEnded, sessionStarted, sessionEnded}));
    QCOMPARE(viewer.settings(), yes);
}

void ConsentHistoryTest::testWithdrawalDeletesWhatWasStoredAndLeavesItsRecord()
{
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    viewer.start("waitUntil(function () { return settings.get('Test/GoOn'); }, 60000);\n"
                 "consent.answer('no');\nconsent.apply();\nsleep(600000);");
    QVERIFY(viewer.waitForEvents(hasStarted));
    QFile settings(viewer.path("config/Ostrand/nerix-viewer.ini"));
    QVERIFY(settings.open(QIODevice::Append));
    settings.write("\n[Test]\nGoOn=true\n");
    settings.close();
    const QStringList withdrawal = {"ruiSDK\tOptOut\t"};
    QVERIFY(viewer.waitForEvents(
        [&withdrawal](const QStringList &events) { return events == withdrawal; }));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(viewer.storedEvents(), withdrawal);
    QVERIFY(viewer.settings().contains("OptInEnabled=false\nOptInSelected=true\n"));

    // The next run tracks nothing.
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    QCOMPARE(viewer.run(session), 0);
    QCOMPARE(viewer.storedEvents(), withdrawal);
}

void ConsentHistoryTest::testAnswersAreWrittenOnlyAtAnOrderlyEnd()
{
    CViewerProcess viewer;
    viewer.start("consent.answer('yes');\nconsent.apply();\n"
                 "print(settings.get('UsageTracking/OptInEnabled'));\nsleep(600000);");
    QVERIFY(viewer.waitForLine("null"));
    QVERIFY(!viewer.settings().contains("OptIn"));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(viewer.settings(), yes);
}

QTEST_GUILESS_MAIN(ConsentHistoryTest)

#include "ConsentHistoryTest.moc"
