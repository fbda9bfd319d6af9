// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CommandLine.h"

#include "support/Texts.h"

#include <QTemporaryFile>
#include <QTest>

using Application::CommandLine;
using Application::parseCommandLine;

class CommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testNoOptionIsFine();
    void testPluginPathMayBeGivenMoreThanOnce();
    void testSettingsDir();
    void testScriptThatCanBeRead();
    void testHelpNamesEveryOption();
    void testVersion();
    void testWhatIsWrongIsNamedInOneLine_data();
    void testWhatIsWrongIsNamedInOneLine();

private:
    static CommandLine parse(std::initializer_list<const char *> options);
};

CommandLine CommandLineTest::parse(std::initializer_list<const char *> options)
{
    return parseCommandLine(texts({"nerix-viewer"}) + texts(options));
}

void CommandLineTest::testNoOptionIsFine()
{
    const CommandLine commandLine = parse({});
    QVERIFY(commandLine.error.isEmpty());
    QVERIFY(commandLine.output.isEmpty());
    QVERIFY(commandLine.pluginFolders.isEmpty());
    QVERIFY(commandLine.settingsFolder.isEmpty());
    QVERIFY(commandLine.scriptFile.isEmpty());
}

void CommandLineTest::testPluginPathMayBeGivenMoreThanOnce()
{
    const CommandLine commandLine = parse({"--plugin-path", "a", "--plugin-path=b"});
    QVERIFY(commandLine.error.isEmpty());
    QCOMPARE(commandLine.pluginFolders, texts({"a", "b"}));
}

void CommandLineTest::testSettingsDir()
{
    QCOMPARE(parse({"--settings-dir", "a b"}).settingsFolder, QStringLiteral("a b"));
}

void CommandLineTest::testScriptThatCanBeRead()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    const CommandLine commandLine = parse({"--script", qPrintable(file.fileName())});
    QVERIFY(commandLine.error.isEmpty());
    QCOMPARE(commandLine.scriptFile, file.fileName());
}

void CommandLineTest::testHelpNamesEveryOption()
{
    const QString help = parse({"--help"}).output;
    for (const char *option :
         {"--plugin-path DIR", "--settings-dir DIR", "--script FILE.js", "--help", "--version"}) {
        QVERIFY2(help.contains(QLatin1String(option)), option);
    }
}

void CommandLineTest::testVersion()
{
    QCOMPARE(parse({"--version"}).output, QStringLiteral("nerix-viewer 7.1.0\n"));
}

void CommandLineTest::testWhatIsWrongIsNamedInOneLine_data()
{
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("error");

    const auto row = [](const char *name, std::initializer_list<const char *> options,
                        const char *error) {
        QTest::newRow(name) << texts(options) << QString::fromUtf8(error);
    };
    row("an option that there is not", {"--colour"},
        "nerix-viewer: Unknown option 'colour'. (nerix-viewer --help lists the options)");
    row("a value that is missing", {"--plugin-path"},
        "nerix-viewer: Missing value after '--plugin-path'. (nerix-viewer --help lists the "
        "options)");
    row("a value that is empty", {"--settings-dir="},
        "nerix-viewer: The value of '--settings-dir' is empty: name a DIR.");
    row("an argument that is no option", {"session.js"},
        "nerix-viewer: Unexpected argument 'session.js'. (nerix-viewer --help lists the options)");
    row("a script that is not there", {"--script", "/nowhere/session.js"},
        "nerix-viewer: Script /nowhere/session.js cannot be read (No such file or directory): name "
        "a file that can.");
    row("a folder as a script", {"--script", "/"},
        "nerix-viewer: Script / cannot be read (file to open is a directory): name a file that "
        "can.");
}

void CommandLineTest::testWhatIsWrongIsNamedInOneLine()
{
    QFETCH(QStringList, options);
    QFETCH(QString, error);
    QCOMPARE(parseCommandLine(texts({"nerix-viewer"}) + options).error, error);
}

QTEST_APPLESS_MAIN(CommandLineTest)

#include "CommandLineTest.moc"
