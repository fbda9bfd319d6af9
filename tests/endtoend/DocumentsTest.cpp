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

    void testCommand_data();
    void testCommand();
    void testScript_data();
    void testScript();
    void testEveryFunctionOfAScriptIsDescribed();
    void testPluginExampleIsQuotedAsItIs();

private:
    QProcessEnvironment environmentFor(const QString &folder) const;

    QTemporaryDir m_folder;
};

namespace {

const QStringList documents = {"README.md", "docs/scripting.md", "docs/plugins.md"};

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

void DocumentsTest::initTestCase()
{
    QVERIFY(install(m_folder.filePath("prefix")));
    for (const QString &document : documents) {
        const QString folder = m_folder.filePath(QFileInfo(document).baseName());
        QVERIFY(QDir().mkpath(folder + "/home"));
        QVERIFY(QFile::link(NERIX_SOURCE_DIR "/tools", folder + "/tools"));
    }
}

QProcessEnvironment DocumentsTest::environmentFor(const QString &folder) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString prefix = m_folder.filePath("prefix");
    environment.insert("PATH", prefix + "/bin:" + environment.value("PATH"));
    environment.insert("PREFIX", prefix);
    environment.insert("EXAMPLES", NERIX_SOURCE_DIR "/docs/examples");
    environment.insert("HOME", folder + "/home");
    environment.insert("XDG_RUNTIME_DIR", folder + "/home");
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        environment.remove(name);
    }
    return environment;
}

void DocumentsTest::testCommand_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("output");
    for (const QString &document : documents) {
        const auto examples = consoleExamples(readDocument(document));
        QVERIFY(!examples.isEmpty());
        for (const ConsoleExample &example : examples) {
            const QString firstLine = example.command.section('\n', 0, 0);
            QTest::newRow(qPrintable(document + ": " + firstLine))
                << m_folder.filePath(QFileInfo(document).baseName()) << example.command
                << example.output;
        }
    }
}

void DocumentsTest::testCommand()
{
    QFETCH(QString, folder);
    QFETCH(QString, command);
    if (qgetenv("NERIX_NETWORK") == "loopback" && command.contains("in-network-namespace")) {
        QSKIP("a network of its own is not granted");
    }
    QFile::setPermissions(folder + "/home", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcess shell;
    shell.setProcessEnvironment(environmentFor(folder));
    shell.setWorkingDirectory(folder);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start("bash", {"-c", command});
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished(120000));
    QTEST(QString::fromUtf8(shell.readAll()), "output");
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

QTEST_GUILESS_MAIN(DocumentsTest)

#include "DocumentsTest.moc"
