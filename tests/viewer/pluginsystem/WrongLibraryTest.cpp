// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestTexts.h"

#include <FixtureControl.h>
#include <pluginsystem/CPluginManager.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace PluginSystem;

/// Libraries that are deliberately wrong. All are real files.
class WrongLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void testWrongLibrary_data();
    void testWrongLibrary();
    void testTextFile();
    void testMissingFolder();
    void testNameThatIsTaken();
    void testNameThatABuiltInPluginHas();
    void testOthersGoOn();
    void testMetaDataOfAGoodOne();
};

namespace {

QString folder(const char *name)
{
    return QStringLiteral(NERIX_FIXTURE_PLUGINS "/%1").arg(QString::fromLatin1(name));
}

/// "{fixtures}" in a text of a table stands for the folder of the fixtures.
QString resolvePaths(QString text)
{
    return text.replace(QLatin1String("{fixtures}"), QStringLiteral(NERIX_FIXTURE_PLUGINS));
}

} // namespace

void WrongLibraryTest::init()
{
    FixtureControl::reset();
}

void WrongLibraryTest::testWrongLibrary_data()
{
    QTest::addColumn<QString>("folderName");
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<PluginState>("state");
    QTest::addColumn<QStringList>("error");

    QTest::newRow("made for another program")
        << "identifier"
        << "Foreign" << PluginState::Found
        << texts({"\"{fixtures}/identifier/libForeign.so\" is a plug-in for another program (its "
                  "identifier is \"com.example.editor.IExtension\", the viewer's is "
                  "\"example.ostrand.NerixViewer.IPlugin/1\"): remove it from the folder"});
    QTest::newRow("a library without plug-in entry")
        << "noentry"
        << "{fixtures}/noentry/libNoEntry.so" << PluginState::Found
        << texts({"\"{fixtures}/noentry/libNoEntry.so\" is not a plug-in (Failed to "
                  "extract plugin meta data from '{fixtures}/noentry/libNoEntry.so'): remove it "
                  "from the folder"});
    QTest::newRow("metadata that is not complete, a line for each fault")
        << "metadata"
        << "BadMetaData" << PluginState::Found
        << texts({"\"{fixtures}/metadata/libBadMetaData.so\" describes itself wrongly, it has the "
                  "\"Version\" \"7.x\" instead of numbers with dots: update or remove "
                  "\"{fixtures}/metadata/libBadMetaData.so\"",
                  "\"{fixtures}/metadata/libBadMetaData.so\" describes itself wrongly, entry 1 of "
                  "\"Dependencies\" has the \"Version\" \"\" instead of numbers with dots: update "
                  "or remove \"{fixtures}/metadata/libBadMetaData.so\""});
    QTest::newRow("a library that lacks a function")
        << "unresolved"
        << "Unresolved" << PluginState::Resolved
        << texts({"Plug-in \"Unresolved\" cannot be loaded (Cannot load library "
                  "{fixtures}/unresolved/libUnresolved.so: "
                  "({fixtures}/unresolved/libUnresolved.so: undefined symbol: "
                  "nerixFunctionOfAnotherVersion)): update or remove "
                  "\"{fixtures}/unresolved/libUnresolved.so\""});
    QTest::newRow("an object that is not a plug-in")
        << "wrongobject"
        << "WrongObject" << PluginState::Resolved
        << texts({"Plug-in \"WrongObject\" cannot be loaded (its object is not a "
                  "Core::Plugin::IPlugin but a CWrongObject): update or remove "
                  "\"{fixtures}/wrongobject/libWrongObject.so\""});
    QTest::newRow("dependencies that are not there, a line each")
        << "unmet"
        << "Lonely" << PluginState::Read
        << texts({"Plug-in \"Lonely\" needs \"Absent\" 1.0.0, which is not there: install "
                  "\"Absent\", or update or remove \"{fixtures}/unmet/libLonely.so\"",
                  "Plug-in \"Lonely\" needs \"Missing\" 2.5.0, which is not there: install "
                  "\"Missing\", or update or remove \"{fixtures}/unmet/libLonely.so\""});
    QTest::newRow("a cycle, seen from the egg")
        << "cycle"
        << "Egg" << PluginState::Read
        << texts({"Plug-in \"Egg\" depends on itself (Egg -> Hen -> Egg): update or remove "
                  "\"{fixtures}/cycle/libEgg.so\""});
    QTest::newRow("a cycle, seen from the hen")
        << "cycle"
        << "Hen" << PluginState::Read
        << texts({"Plug-in \"Hen\" depends on itself (Hen -> Egg -> Hen): update or remove "
                  "\"{fixtures}/cycle/libHen.so\""});
    QTest::newRow("a version that is supported no more")
        << "version"
        << "NeedsOlder" << PluginState::Read
        << texts({"Plug-in \"NeedsOlder\" needs \"Old\" 1.8.9, but there is \"Old\" 1.10.0, which "
                  "can stand in for 1.9.0 to 1.10.0 only: install a \"Old\" that fits, or update "
                  "or remove \"{fixtures}/version/libNeedsOlder.so\""});
    QTest::newRow("a version that is still to come")
        << "version"
        << "NeedsNewer" << PluginState::Read
        << texts({"Plug-in \"NeedsNewer\" needs \"Old\" 1.10.1, but there is \"Old\" 1.10.0, which "
                  "can stand in for 1.9.0 to 1.10.0 only: install a \"Old\" that fits, or update "
                  "or remove \"{fixtures}/version/libNeedsNewer.so\""});
    QTest::newRow("a version that fits")
        << "version"
        << "NeedsJustThis" << PluginState::Initialized << QStringList();
}

void WrongLibraryTest::testWrongLibrary()
{
    QFETCH(QString, folderName);
    QFETCH(QString, plugin);
    QFETCH(QStringList, error);
    CPluginManager manager;

    manager.addFolder(resolvePaths(QStringLiteral("{fixtures}/") + folderName));
    manager.start();

    const CPluginSpec *spec = manager.plugin(resolvePaths(plugin));
    QVERIFY(spec);
    QCOMPARE(spec->error(), resolvePaths(error.join(QLatin1Char('\n'))));
    QTEST(spec->state(), "state");
}

void WrongLibraryTest::testTextFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("libText.so"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("This is a text. It is long enough to be looked at, and no library at all.\n");
    file.close();
    CPluginManager manager;

    manager.addFolder(folder.path());
    manager.start();

    QCOMPARE(manager.errors(),
             QStringList(QStringLiteral("\"%1\" is not a plug-in ('%1' is not an ELF object"
                                        "): remove it from the folder")
                             .arg(path)));
    QCOMPARE(manager.plugins().at(0)->name(), path);
    QCOMPARE(manager.plugins().at(0)->state(), PluginState::Found);
}

void WrongLibraryTest::testMissingFolder()
{
    CPluginManager manager;
    QTest::ignoreMessage(QtWarningMsg, "Plug-in folder \"/nowhere/at/all\" does not exist: create "
                                       "it, or do not name it");
    manager.addFolder(QStringLiteral("/nowhere/at/all"));
    manager.start();

    QCOMPARE(manager.errors(),
             texts({"Plug-in folder \"/nowhere/at/all\" does not exist: create it, or do not name "
                    "it"}));
}

void WrongLibraryTest::testNameThatIsTaken()
{
    CPluginManager manager;
    manager.addFolder(folder("chain"));
    manager.addFolder(folder("twin"));
    manager.start();

    QCOMPARE(manager.errors(),
             QStringList(resolvePaths(QStringLiteral(
                 "Plug-in \"Base\" from \"{fixtures}/twin/libTwin.so\" is there already, from "
                 "\"{fixtures}/chain/libBase.so\": remove one of them"))));
    QCOMPARE(manager.plugin(QStringLiteral("Base"))->state(), PluginState::Initialized);
    QCOMPARE(manager.plugins().last()->state(), PluginState::Read);
}

void WrongLibraryTest::testNameThatABuiltInPluginHas()
{
    CPluginManager manager;
    PluginMetaData metaData;
    metaData.name = QStringLiteral("Base");
    manager.addBuiltIn(metaData, [] { return nullptr; });
    manager.addFolder(folder("twin"));

    QCOMPARE(manager.errors(),
             QStringList(resolvePaths(QStringLiteral(
                 "Plug-in \"Base\" from \"{fixtures}/twin/libTwin.so\" is there already, from the "
                 "viewer itself: remove one of them"))));
}

void WrongLibraryTest::testOthersGoOn()
{
    CPluginManager manager;
    for (const char *name : {"identifier", "noentry", "metadata", "unresolved", "wrongobject",
                             "unmet", "cycle", "version", "chain"}) {
        manager.addFolder(folder(name));
    }
    manager.start();
    QCoreApplication::processEvents();

    for (const QString &name : texts({"Base", "Middle", "Top", "Aside", "Old", "NeedsJustThis"})) {
        QCOMPARE(manager.plugin(name)->error(), QString());
        QCOMPARE(manager.plugin(name)->state(), PluginState::Running);
    }
    QCOMPARE(manager.errors().size(), 12);
}

void WrongLibraryTest::testMetaDataOfAGoodOne()
{
    CPluginManager manager;
    manager.addFolder(folder("chain"));

    const CPluginSpec *top = manager.plugin(QStringLiteral("Top"));
    QVERIFY(top);
    QCOMPARE(top->state(), PluginState::Read);
    QCOMPARE(top->libraryPath(), QStringLiteral(NERIX_FIXTURE_PLUGINS "/chain/libTop.so"));
    QCOMPARE(top->metaData().version, QVersionNumber(1, 2, 0));
    QCOMPARE(top->metaData().compatVersion, QVersionNumber(1, 0, 0));
    QCOMPARE(top->metaData().vendor, QStringLiteral("Ostrand"));
    QCOMPARE(top->metaData().description, QStringLiteral("Needs both of the others."));
    QCOMPARE(top->metaData().identifier, QStringLiteral("example.ostrand.NerixViewer.IPlugin/1"));
    QCOMPARE(top->metaData().dependencies.size(), 2);
}

QTEST_GUILESS_MAIN(WrongLibraryTest)
#include "WrongLibraryTest.moc"
