// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QDir>
#include <QTest>

// What goes wrong around the viewer is one line with the name and the remedy, and ends nothing.
class PeopleErrorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testPluginThatDoesNotFit_data();
    void testPluginThatDoesNotFit();
    void testPluginFolderThatIsMissing();
    void testPluginFolderWithoutAPlugin();
    void testNoCameraFound();
    void testCameraThatAnotherProgramControls();
    void testSettingsFolderThatCannotBeWritten();
    void testConfigurationDirectoryThatCannotBeWritten();
    void testDatabaseThatIsNotOne();
};

namespace {

const QString fixtures = NERIX_FIXTURE_PLUGINS "/";

void makeFile(const QString &fileName, const QByteArray &content = {})
{
    QDir().mkpath(QFileInfo(fileName).path());
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(fileName));
    }
}

} // namespace

void PeopleErrorsTest::testPluginThatDoesNotFit_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("unmet dependencies, a line each")
        << "unmet"
        << QStringList({"error: Plug-in \"Lonely\" needs \"Absent\" 1.0.0, which is not there: "
                        "install \"Absent\", or update or remove \"%1/libLonely.so\"",
                        "error: Plug-in \"Lonely\" needs \"Missing\" 2.5.0, which is not there: "
                        "install \"Missing\", or update or remove \"%1/libLonely.so\""});
    QTest::newRow("a cycle, a line for each plug-in in it")
        << "cycle"
        << QStringList({"warning: Plug-in \"Egg\" depends on itself (Egg -> Hen -> Egg): update or "
                        "remove \"%1/libEgg.so\"",
                        "warning: Plug-in \"Hen\" depends on itself (Hen -> Egg -> Hen): update or "
                        "remove \"%1/libHen.so\""});
    QTest::newRow("a wrong interface identifier")
        << "identifier"
        << QStringList({"warning: \"%1/libForeign.so\" is a plug-in for another program (its "
                        "identifier is \"com.example.editor.IExtension\", the viewer's is "
                        "\"example.ostrand.NerixViewer.IPlugin/1\"): remove it from the folder"});
    QTest::newRow("a library that does not load")
        << "unresolved"
        << QStringList(
               {"warning: Plug-in \"Unresolved\" cannot be loaded (Cannot load library "
                "%1/libUnresolved.so: (%1/libUnresolved.so: undefined symbol: "
                "nerixFunctionOfAnotherVersion)): update or remove \"%1/libUnresolved.so\""});
    QTest::newRow("a library that is not a plug-in")
        << "noentry"
        << QStringList({"warning: \"%1/libNoEntry.so\" is not a plug-in (Failed to extract plugin "
                        "meta data from '%1/libNoEntry.so'): remove it from the folder"});
}

void PeopleErrorsTest::testPluginThatDoesNotFit()
{
    QFETCH(QString, folder);
    QFETCH(QStringList, lines);
    CViewerProcess viewer;
    viewer.setOptions({"--plugin-path", fixtures + folder});
    QCOMPARE(viewer.run("print('running');"), 0);
    QCOMPARE(viewer.printed(), QStringList({"running"}));
    QCOMPARE(viewer.logged(), lines.replaceInStrings("%1", fixtures + folder));
}

void PeopleErrorsTest::testPluginFolderThatIsMissing()
{
    CViewerProcess viewer;
    viewer.setOptions({"--plugin-path", "/nowhere/plugins"});
    QCOMPARE(viewer.run("print('running');"), 0);
    QCOMPARE(viewer.logged(), QStringList({"warning: Plug-in folder \"/nowhere/plugins\" does not "
                                           "exist: create it, or do not name it"}));
}

void PeopleErrorsTest::testPluginFolderWithoutAPlugin()
{
    CViewerProcess viewer;
    viewer.setOptions({"--plugin-path", viewer.path("cache")});
    QCOMPARE(viewer.run("print('running');"), 0);
    QCOMPARE(viewer.logged(), QStringList({"no plug-in in folder " + viewer.path("cache")}));
}

void PeopleErrorsTest::testNoCameraFound()
{
    CViewerProcess viewer;
    viewer.start("try { cameras.waitFor(1, 8000); } catch (error) { print(error.message); }");
    QCOMPARE(viewer.finish(), 0);
    const QString remedy = "plug one in, and check its power and that its address is in a network "
                           "of this computer";
    QCOMPARE(viewer.printed(),
             QStringList({"there are not 1 cameras after 8000 ms (no camera is connected: " + remedy
                          + ")"}));
    QCOMPARE(viewer.logged(),
             QStringList({"no camera found: " + remedy + "; the viewer goes on looking"}));
}

void PeopleErrorsTest::testCameraThatAnotherProgramControls()
{
    CSimulatorProcess camera({"--serial", "A-7"});
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess first;
    first.start("cameras.open(cameras.waitFor(1, 60000)[0]); print('open'); sleep(600000);");
    QVERIFY(first.waitForLine("open"));

    CViewerProcess second;
    const QString line = "Ostrand-XQZ-2000-A-7 is in use: another program controls it; close the "
                         "camera there, then open it here again";
    QCOMPARE(second.run("var camera = cameras.waitFor(1, 60000)[0];\n"
                        "try { cameras.open(camera); } catch (error) { print(error.message); }\n"
                        "waitUntil(function () {\n"
                        "    return cameras.list()[0].state === 'in use elsewhere';\n"
                        "}, 60000);\n"),
             0);
    QCOMPARE(second.printed(), QStringList({line}));
    QCOMPARE(second.logged(), QStringList({"warning: " + line}));
    first.terminate();
    QCOMPARE(first.finish(), 1);
}

void PeopleErrorsTest::testSettingsFolderThatCannotBeWritten()
{
    CViewerProcess viewer;
    makeFile(viewer.path("file"));
    viewer.setOptions({"--settings-dir", viewer.path("file/settings")});
    QCOMPARE(viewer.run("consent.answer('no'); consent.apply(); print(welcome.close());"), 0);
    QCOMPARE(viewer.printed(), QStringList({"true"}));
    QCOMPARE(viewer.logged(),
             QStringList({"warning: settings folder " + viewer.path("file")
                          + "/settings/Ostrand cannot be written, so nothing will "
                            "be remembered: make it writable or choose another one "
                            "with --settings-dir"}));
}

void PeopleErrorsTest::testConfigurationDirectoryThatCannotBeWritten()
{
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    makeFile(viewer.path("file"));
    viewer.setEnvironment("XDG_DATA_HOME", viewer.path("file/data"));
    viewer.storeConsent(true, true);
    QCOMPARE(viewer.run("print(cameras.open(cameras.waitFor(1, 60000)[0]).state);"), 0);
    QCOMPARE(viewer.printed(), QStringList({"open"}));
    QCOMPARE(viewer.logged(), QStringList({"warning: data folder " + viewer.path("file")
                                           + "/data/Ostrand/nerix-viewer cannot be written, so "
                                             "plug-ins keep nothing there: make it writable or set "
                                             "XDG_DATA_HOME to another folder"}));
}

void PeopleErrorsTest::testDatabaseThatIsNotOne()
{
    CViewerProcess viewer;
    viewer.storeConsent(true, true);
    const QByteArray content(4096, 'x');
    makeFile(viewer.libraryFolder() + "/usage-events.sqlite", content);
    viewer.start("sleep(600000);");
    QVERIFY(viewer.waitForEvents([](const QStringList &events) { return !events.isEmpty(); }));
    viewer.terminate();
    QCOMPARE(viewer.finish(), 1);

    const QStringList setAside = viewer.libraryFiles().filter("usage-events.sqlite.damaged-");
    QCOMPARE(setAside.size(), 1);
    QFile file(viewer.libraryFolder() + '/' + setAside.at(0));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
    const QString database = viewer.libraryFolder() + "/usage-events.sqlite";
    QCOMPARE(
        viewer.logged().filter("ruiSDK:"),
        QStringList({"ruiSDK: " + database + " is not a usable database; set aside as "
                     + file.fileName() + ", a new one is begun with 0 events that could be read"}));
}

QTEST_GUILESS_MAIN(PeopleErrorsTest)

#include "PeopleErrorsTest.moc"
