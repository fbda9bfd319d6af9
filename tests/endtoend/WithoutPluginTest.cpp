// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QDir>
#include <QTest>

// The viewer with the plug-in's library taken out of its folder: it works, and nothing tells that
// there ever was such a plug-in.
class WithoutPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testViewerWorksWithoutATrace_data();
    void testViewerWorksWithoutATrace();
    void testDataLogSaysThatNothingWasEverStored();
};

namespace {

void takeThePluginAway(CViewerProcess &viewer, const QStringList &options)
{
    QDir(viewer.path("")).mkpath("plugins");
    viewer.setOptions(QStringList({"--plugin-path", viewer.path("plugins")}) + options);
}

} // namespace

void WithoutPluginTest::testViewerWorksWithoutATrace_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("windows");
    QTest::newRow("without windows") << QStringList() << "";
    QTest::newRow("with windows") << QStringList("--show-windows") << "Nerix Viewer";
}

void WithoutPluginTest::testViewerWorksWithoutATrace()
{
    QFETCH(QStringList, options);
    QFETCH(QString, windows);
    CSimulatorProcess simulator;
    QVERIFY2(simulator.start(), qPrintable(simulator.errorText()));
    CViewerProcess viewer;
    takeThePluginAway(viewer, options);
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(
        viewer.run("function of(list, key, part) {\n"
                   "    return list.filter(function (x) { return x[key].match(part); }).length;\n"
                   "}\n"
                   "print('plug-ins', of(plugins.list(), 'name', /UsageTracking/));\n"
                   "print('entries', of(menu.list(), 'id', /UsageTracking|DataPrivacy/));\n"
                   "print('texts', of(menu.list(), 'text', /Data Privacy/));\n"
                   "print('tabs', welcome.tabs().length, welcome.visible());\n"
                   "print('windows', windows.titles());\n"
                   "var camera = cameras.waitFor(1, 30000)[0];\n"
                   "cameras.open(camera);\n"
                   "features.set(camera, 'Gain', '3');\n"
                   "grab.single(camera);\n"
                   "cameras.close(camera);\n"
                   "var shows = menu.list().filter(function (x) {\n"
                   "    return x.id === 'NerixWelcome.Action.Show';\n"
                   "});\n"
                   "print('welcome entry', shows[0].enabled);\n"
                   "print('works');"),
        0);
    QCOMPARE(viewer.printed(), QStringList({"plug-ins 0", "entries 0", "texts 0", "tabs 0 false",
                                            "windows " + windows, "welcome entry false", "works"}));
    QCOMPARE(viewer.libraryFiles(), QStringList());
    QVERIFY(!viewer.settings().contains("UsageTracking"));
}

void WithoutPluginTest::testDataLogSaysThatNothingWasEverStored()
{
    CViewerProcess viewer;
    takeThePluginAway(viewer, {"--show-windows"});
    viewer.setEnvironment("QT_QPA_PLATFORM", "offscreen");
    QCOMPARE(viewer.run("menu.trigger('UsageDataLog.Action.Show');\n"
                        "waitUntil(function () { return windows.titles().length === 2; }, 30000);\n"
                        "print(windows.titles());"),
             0);
    QCOMPARE(viewer.printed(), QStringList({"Nerix Viewer,Usage Data Log"}));
}

QTEST_GUILESS_MAIN(WithoutPluginTest)

#include "WithoutPluginTest.moc"
