// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "Documents.h"

#include "CSimulatorProcess.h"
#include "CViewerProcess.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

// What the documents show is what happens: each command and each script is run as it is written.
class DocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void testCommands_data();
    void testCommands();
    void testScript_data();
    void testScript();
    void testEveryFunctionOfAScriptIsDescribed();
    void testPluginExampleIsQuotedAsItIs();
    void testLinksLeadToFiles_data();
    void testLinksLeadToFiles();

private:
    QTemporaryDir m_folder;
};

namespace {

const QStringList documents = {"README.md", "docs/scripting.md", "docs/plugins.md",
                               "docs/events.md"};

// Set, so that what is installed runs from another place than what was built.
bool install(const QString &prefix)
{
    QProcess cmake;
    cmake.setProcessChannelMode(QProcess::MergedChannels);
    cmake.start("cmake", {"--install", NERIX_BUILD_DIR, "--prefix", prefix});
    if (!cmake.waitForFinished(120000) || cmake.exitCode() != 0) {
        qWarning("%s", cmake.readAll().constData());
        return false;
    }
    return true;
}

// What somebody has who has just logged in to a Debian without a desktop.
QProcessEnvironment bareEnvironment(const QString &home)
{
    QProcessEnvironment environment;
    environment.insert("HOME", home);
    environment.insert("PATH", "/usr/local/bin:/usr/bin:/bin");
    for (const char *name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS"}) {
        if (qEnvironmentVariableIsSet(name)) {
            environment.insert(name, qEnvironmentVariable(name));
        }
    }
    return environment;
}

// What each of the commands writes.
QStringList outputsInABareShell(const QList<ConsoleExample> &examples, const QString &folder)
{
    const QString mark = "==== end of a command ====\n";
    QString script;
    for (const ConsoleExample &example : examples) {
        script += example.command + "\nprintf '" + mark.chopped(1) + "\\n'\n";
    }
    QProcess shell;
    shell.setProcessEnvironment(bareEnvironment(folder + "/home"));
    shell.setWorkingDirectory(folder);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start("bash", {"-c", script});
    shell.closeWriteChannel();
    if (!shell.waitForFinished(240000)) {
        return {};
    }
    QStringList outputs = QString::fromUtf8(shell.readAll()).split(mark);
    outputs.removeLast();
    return outputs;
}

// Every function of the viewer that a script can call, as "cameras.list" or "print".
QStringList functionsOfAScript()
{
    CViewerProcess viewer;
    const int status =
        viewer.run("var global = this;\n"
                   "for (var name in global) {\n"
                   "    if (name === 'global' || name.indexOf('__') === 0) continue;\n"
                   "    if (typeof global[name] === 'function') print(name);\n"
                   "    else for (var inner in global[name])\n"
                   "        if (typeof global[name][inner] === 'function')\n"
                   "            print(name + '.' + inner);\n"
                   "}");
    const QRegularExpression ofEveryObject(
        "[.](destroyed|objectNameChanged|deleteLater|destroy|toString)$");
    QStringList names;
    for (const QString &name : viewer.printed()) {
        if (status == 0 && !name.contains(ofEveryObject)) {
            names += name;
        }
    }
    names.removeDuplicates();
    return names;
}

} // namespace

// Each document has a home folder of its own, in which the viewer is installed as the README says,
// and is read in the folder of the source.
void DocumentsTest::initTestCase()
{
    for (const QString &document : documents) {
        const QString folder = m_folder.filePath(QFileInfo(document).baseName());
        QVERIFY(QDir().mkpath(folder + "/home"));
        QVERIFY(QFile::link(NERIX_SOURCE_DIR "/tools", folder + "/tools"));
        QVERIFY(QFile::link(m_folder.filePath("nerix"), folder + "/home/nerix"));
    }
    QVERIFY(install(m_folder.filePath("nerix")));
}

void DocumentsTest::testCommands_data()
{
    QTest::addColumn<QString>("document");
    for (const QString &document : documents) {
        QTest::newRow(qPrintable(document)) << document;
    }
}

// One after the other, in a shell that knows nothing but what the document has told it.
void DocumentsTest::testCommands()
{
    QFETCH(QString, document);
    const auto examples = consoleExamples(readDocument(document));
    QVERIFY(!examples.isEmpty());
    if (qgetenv("NERIX_NETWORK") == "loopback") {
        QSKIP("a network of its own is not granted");
    }
    const QStringList outputs =
        outputsInABareShell(examples, m_folder.filePath(QFileInfo(document).baseName()));
    QCOMPARE(outputs.size(), examples.size());
    for (int index = 0; index < examples.size(); ++index) {
        const ConsoleExample &example = examples.at(index);
        QVERIFY2(outputs.at(index) == example.output,
                 qPrintable("$ " + example.command + '\n' + outputs.at(index)));
    }
}

void DocumentsTest::testScript_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("output");
    const auto examples = scriptExamples(readDocument("docs/scripting.md"));
    QVERIFY(examples.size() >= 12);
    for (const ScriptExample &example : examples) {
        QTest::newRow(qPrintable(example.script.section('\n', 0, 0)))
            << example.script << example.output;
    }
}

void DocumentsTest::testScript()
{
    QFETCH(QString, script);
    CSimulatorProcess camera;
    QVERIFY2(camera.start(), qPrintable(camera.errorText()));
    CViewerProcess viewer;
    QVERIFY2(viewer.run(script) == 0, qPrintable(viewer.logged().join('\n')));
    QTEST(viewer.printed().join('\n') + '\n', "output");
}

void DocumentsTest::testEveryFunctionOfAScriptIsDescribed()
{
    const QString document = readDocument("docs/scripting.md");
    const QStringList functions = functionsOfAScript();
    QVERIFY(functions.contains("print"));
    QVERIFY(functions.contains("cameras.list"));
    for (const QString &function : functions) {
        const QString call = function == "console.log" ? "`console.log" : '`' + function + '(';
        QVERIFY2(document.contains(call), qPrintable(call));
    }
}

void DocumentsTest::testPluginExampleIsQuotedAsItIs()
{
    const QString document = readDocument("docs/plugins.md");
    const QString example = readDocument("docs/examples/hello/Hello.json")
                            + readDocument("docs/examples/hello/HelloPlugin.h")
                            + readDocument("docs/examples/hello/HelloPlugin.cpp");
    const QStringList blocks = codeBlocks(document, "cpp") + codeBlocks(document, "json");
    QCOMPARE(blocks.size(), 3);
    for (const QString &block : blocks) {
        QVERIFY2(example.contains(block), qPrintable(block));
    }
}

void DocumentsTest::testLinksLeadToFiles_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("in the repository, the README") << NERIX_SOURCE_DIR;
    QTest::newRow("in the repository") << NERIX_SOURCE_DIR "/docs";
    QTest::newRow("installed") << m_folder.filePath("nerix/share/doc/nerix-viewer");
}

void DocumentsTest::testLinksLeadToFiles()
{
    QFETCH(QString, folder);
    const QRegularExpression link("\\]\\(([^)#:]+)(#[^)]*)?\\)");
    const QFileInfoList files = QDir(folder).entryInfoList({"*.md"});
    QVERIFY(!files.isEmpty());
    for (const QFileInfo &document : files) {
        QFile file(document.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto links = link.globalMatch(QString::fromUtf8(file.readAll()));
        while (links.hasNext()) {
            const QString target = links.next().captured(1);
            QVERIFY2(QFileInfo::exists(folder + '/' + target),
                     qPrintable(document.fileName() + ": " + target));
        }
    }
}

QTEST_GUILESS_MAIN(DocumentsTest)

#include "DocumentsTest.moc"
