// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

// The commands of docs/simulator.md, run as they are written there.
class DocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testExample_data();
    void testExample();
    void testNumbersOfFeatures();
};

namespace {

QString document()
{
    QFile file(NERIX_SOURCE_DIR "/docs/simulator.md");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// A command may go on in lines that begin with ">".
struct Example
{
    QString command;
    QString output;
};

QList<Example> examplesOf(const QString &text)
{
    QList<Example> examples;
    bool isInside = false;
    for (const QString &line : text.split('\n')) {
        if (line.startsWith("```")) {
            isInside = line == "```console";
        } else if (isInside && line.startsWith("$ ")) {
            examples.append({line.mid(2), QString()});
        } else if (isInside && line.startsWith("> ")) {
            examples.last().command += '\n' + line.mid(2);
        } else if (isInside) {
            examples.last().output += line + '\n';
        }
    }
    return examples;
}

} // namespace

void DocumentTest::testExample_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("output");
    const QList<Example> examples = examplesOf(document());
    QVERIFY(examples.size() >= 8);
    for (const Example &example : examples) {
        QTest::newRow(qPrintable(example.command.section('\n', 0, 0)))
            << example.command << example.output;
    }
}

void DocumentTest::testExample()
{
    QFETCH(QString, command);
    if (command.startsWith("unshare") && qgetenv("NERIX_NETWORK") == "loopback") {
        QSKIP("a network of its own is not granted");
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString programs = QFileInfo(NERIX_CAMERA_SIMULATOR).path();
    environment.insert("PATH", programs + ':' + environment.value("PATH"));
    QProcess shell;
    shell.setProcessEnvironment(environment);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start("bash", {"-c", command});
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished());
    QTEST(QString::fromUtf8(shell.readAll()), "output");
}

void DocumentTest::testNumbersOfFeatures()
{
    QProcess simulator;
    simulator.start(NERIX_CAMERA_SIMULATOR, {"--features", "0"});
    QVERIFY(simulator.waitForFinished());
    QVERIFY(simulator.readAllStandardError().contains(" from 43 to 1323"));
    QVERIFY(document().contains("| number of features, 43 to 1323 | 43 |"));
}

QTEST_GUILESS_MAIN(DocumentTest)

#include "DocumentTest.moc"
