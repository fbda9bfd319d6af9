// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QRegularExpression>
#include <QTest>

// One session with and one without consent, down to the stored bytes.
class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testConsentedSessionIsStoredExactly();
    void testSessionWithoutConsentLeavesNoFile_data();
    void testSessionWithoutConsentLeavesNoFile();
    void testSessionWithoutACameraEndsWithZero();
    void testPluginRunsWithEverythingItNeeds();
};

namespace {

const char session[] = "var camera = cameras.waitFor(1, 60000)[0];\n"
                       "cameras.open(camera);\n"
                       "cameras.close(camera);\n";

// The values of the features are the camera's business.
QStringList withoutFeatureValues(QStringList events)
{
    return events.replaceInStrings(QRegularExpression("\"FeatureStreamStats\":\"[^\"]+\""),
                                   "\"FeatureStreamStats\":\"...\"");
}

} // namespace

void SessionTest::testConsentedSessionIsStoredExactly()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    QCOMPARE(viewer.run(session), 0);
    QCOMPARE(
        withoutFeatureValues(viewer.storedEvents()),
        QStringList(
            {"GeneralEvent\tSessionStarted\t"
             R"({"EventCategory":"GeneralEvent","EventName":"SessionStarted"})",
             "Model\tOstrand ***-2000\t",
             "Camera\tConnected\t"
             R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Connected",)"
             R"("Model":"Ostrand ***-2000"})",
             "GeneralEvent\tInitialCameraCount\t"
             R"({"EventCategory":"GeneralEvent","EventName":"InitialCameraCount",)"
             R"("InitialCameraCount":1})",
             "Camera\tOpened\t"
             R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Opened",)"
             R"("FeatureStreamStats":"...","Model":"Ostrand ***-2000"})",
             "Camera\tClosed\t"
             R"({"CameraNr":0,"EventCategory":"Camera","EventName":"Closed",)"
             R"("FeatureStreamStats":"...","Model":"Ostrand ***-2000"})",
             "GeneralEvent\tSessionEnded\t"
             R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded","FinalCameraCount":1,)"
             R"("TotalUsedCameraCount":1})"}));
    QCOMPARE(viewer.logged(), QStringList());
}

void SessionTest::testSessionWithoutConsentLeavesNoFile_data()
{
    QTest::addColumn<bool>("isStored");
    QTest::addColumn<bool>("selected");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("a first start") << false << false << false;
    QTest::newRow("answered no") << true << true << false;
    QTest::newRow("a stored yes that was never applied") << true << false << true;
}

void SessionTest::testSessionWithoutConsentLeavesNoFile()
{
    QFETCH(bool, isStored);
    QFETCH(bool, selected);
    QFETCH(bool, enabled);
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    if (isStored) {
        viewer.storeConsent(selected, enabled);
    }
    QCOMPARE(viewer.run(session), 0);
    QCOMPARE(viewer.libraryFiles(), QStringList());
    QVERIFY(!QFile::exists(viewer.libraryFolder()));
}

void SessionTest::testSessionWithoutACameraEndsWithZero()
{
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    viewer.start("sleep(600000);");
    QVERIFY(viewer.waitForEvents([](const QStringList &events) { return events.size() == 2; }));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);
    QCOMPARE(viewer.storedEvents(),
             QStringList({"GeneralEvent\tSessionStarted\t"
                          R"({"EventCategory":"GeneralEvent","EventName":"SessionStarted"})",
                          "GeneralEvent\tInitialCameraCount\t"
                          R"({"EventCategory":"GeneralEvent","EventName":"InitialCameraCount",)"
                          R"("InitialCameraCount":0})",
                          "GeneralEvent\tSessionEnded\t"
                          R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded",)"
                          R"("FinalCameraCount":0,"TotalUsedCameraCount":0})"}));
}

void SessionTest::testPluginRunsWithEverythingItNeeds()
{
    CViewerProcess viewer;
    QCOMPARE(viewer.run("plugins.list().forEach(function (plugin) {\n"
                        "    print(plugin.name, plugin.version, plugin.state, plugin.error);\n"
                        "});"),
             0);
    const QStringList printed = viewer.printed();
    for (const char *name :
         {"AppCore", "CameraPool", "CameraSelector", "FeatureTree", "Help", "Localization",
          "NerixViewer", "NerixWelcome", "ParameterCollectionPool", "Settings", "UsageTracking"}) {
        QVERIFY2(printed.contains(QString(name) + " 7.1.0 Running "), name);
    }
    // Nothing that stands beside them fails.
    QCOMPARE(printed.filter(QRegularExpression(" Running $")), printed);
}

QTEST_GUILESS_MAIN(SessionTest)

#include "SessionTest.moc"
