// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// What the scripts for people say when something is wrong: one sentence with the remedy.
class ScriptsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void testInstallingThatFailsSaysWhy_data();
    void testInstallingThatFailsSaysWhy();
    void testAdviceIsTheCommandThatRootWouldRun();
    void testNothingIsInstalledTwice();
    void testUnknownGroupIsRefused();
    void testFolderThatSomebodyElseBuiltInIsNamed();

private:
    void write(const char *name, const QByteArray &text);
    QStringList installDeps(const QString &group, const QString &path);
    QString read(const char *name) const;

    QTemporaryDir m_folder;
};

void ScriptsTest::write(const char *name, const QByteArray &text)
{
    QFile file(m_folder.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther
                        | QFile::ExeOther);
}

QString ScriptsTest::read(const char *name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The script with the tools of the system in the folder of the test, which write down what they are
// asked for. @return what it says, without the lines that tell progress.
QStringList ScriptsTest::installDeps(const QString &group, const QString &path)
{
    QFile::remove(m_folder.filePath("calls"));
    QProcess script;
    QProcessEnvironment environment;
    environment.insert("PATH", path);
    environment.insert("FOLDER", m_folder.path());
    environment.insert("TMPDIR", m_folder.path());
    script.setProcessEnvironment(environment);
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start("/bin/bash", {NERIX_SOURCE_DIR "/tools/install-deps.sh", group});
    script.waitForFinished(60000);
    QStringList lines = QString::fromUtf8(script.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.filter(QRegularExpression("^Installing|^   "))) {
        lines.removeAll(line);
    }
    return lines;
}

void ScriptsTest::initTestCase()
{
    write("dpkg-query", "#!/bin/sh\n[ -e \"$FOLDER/installed\" ] && printf 'ii ' || exit 1\n");
    write("apt-get", "#!/bin/sh\n"
                     "echo \"apt-get $*\" >>\"$FOLDER/calls\"\n"
                     "case $* in *update) exit 0 ;; esac\n"
                     "cat \"$FOLDER/says\"\n"
                     "exit 100\n");
    write("id", "#!/bin/sh\n[ \"$1\" = -u ] && cat \"$FOLDER/uid\" || echo someone\n");
    QVERIFY(QDir(m_folder.path()).mkdir("tools"));
    for (const char *tool :
         {"dirname", "env", "grep", "sed", "tail", "tr", "mktemp", "sleep", "rm", "cat"}) {
        QVERIFY(QFile::link(QString("/bin/") + tool, m_folder.filePath("tools/") + tool));
    }
}

void ScriptsTest::testInstallingThatFailsSaysWhy_data()
{
    QTest::addColumn<QByteArray>("apt");
    QTest::addColumn<QString>("sentence");
    const QString network = "Debian's packages cannot be reached: check the network and "
                            "/etc/apt/sources.list, then run it again";
    QTest::newRow("no name server")
        << QByteArray("E: Failed to fetch http://x/y  Temporary failure resolving 'x'") << network;
    QTest::newRow("never updated") << QByteArray("E: Unable to locate package mold") << network;
    QTest::newRow("full disk, as apt foresees it")
        << QByteArray("E: You don't have enough free space in /var/cache/apt/archives/.")
        << "the disk is full: free 3 GB, then run it again";
    QTest::newRow("full disk, as dpkg meets it")
        << QByteArray("dpkg: error: failed to write: No space left on device")
        << "the disk is full: free 3 GB, then run it again";
    QTest::newRow("another installation")
        << QByteArray("E: Could not get lock /var/lib/dpkg/lock-frontend.")
        << "another program installs packages: wait for its end, then run it again";
}

void ScriptsTest::testInstallingThatFailsSaysWhy()
{
    QFETCH(QByteArray, apt);
    QFETCH(QString, sentence);
    write("uid", "0");
    write("says", apt);
    QCOMPARE(installDeps("run", m_folder.path() + ":/usr/bin:/bin"),
             QStringList("install-deps.sh: " + sentence));
}

void ScriptsTest::testAdviceIsTheCommandThatRootWouldRun()
{
    const QString withoutSudo = m_folder.path() + ':' + m_folder.filePath("tools");
    write("says", "");
    write("uid", "0");
    installDeps("package", withoutSudo);
    const QString run = read("calls").section('\n', 1, 1).remove(QRegularExpression(" -o \\S+"));
    QVERIFY2(run.startsWith("apt-get install -y --no-install-recommends g++ "), qPrintable(run));
    QVERIFY(run.endsWith(" dpkg-dev file"));

    write("uid", "1000");
    const QStringList said = installDeps("package", withoutSudo);
    QCOMPARE(said.size(), 1);
    QVERIFY2(said.at(0).endsWith("packages are missing, and only root may install them; as root "
                                 "run: apt-get update && "
                                 + run),
             qPrintable(said.at(0)));
    QCOMPARE(read("calls"), QString());
}

void ScriptsTest::testNothingIsInstalledTwice()
{
    write("installed", "");
    QCOMPARE(installDeps("test", m_folder.path() + ":/usr/bin:/bin"), QStringList());
    QCOMPARE(read("calls"), QString());
    QFile::remove(m_folder.filePath("installed"));
}

void ScriptsTest::testUnknownGroupIsRefused()
{
    QCOMPARE(
        installDeps("tests", m_folder.path() + ":/usr/bin:/bin"),
        QStringList("install-deps.sh: there is no group \"tests\": give run, package or test"));
}

void ScriptsTest::testFolderThatSomebodyElseBuiltInIsNamed()
{
    QTemporaryDir checkout;
    QVERIFY(QDir(checkout.path()).mkpath("build/release"));
    QFile::setPermissions(checkout.path(), QFile::Permissions(0x5555));
    QFile::setPermissions(checkout.filePath("build/release"), QFile::Permissions(0x5555));
    QStringList command{"bash",
                        "-c",
                        "cd \"$1\" && source \"$2\" && require_build_folder",
                        "run.sh",
                        checkout.path(),
                        NERIX_SOURCE_DIR "/tools/steps.bash"};
    if (geteuid() == 0) { // who may write everywhere
        command = QStringList{"setpriv", "--reuid", "65534", "--clear-groups"} + command;
    }
    QProcess shell;
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start(command.takeFirst(), command);
    QVERIFY(shell.waitForFinished(60000));
    QFile::setPermissions(checkout.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(checkout.filePath("build/release"), QFile::Permissions(0x7777));
    const QString said = QString::fromUtf8(shell.readAll()).trimmed();
    const QRegularExpression sentence(
        "^run\\.sh: build\\S* belongs to \\S+, who built here before: "
        "run this as that user, or remove the build with: "
        "sudo rm -rf build$");
    QVERIFY2(sentence.match(said).hasMatch(), qPrintable(said));
    QCOMPARE(shell.exitCode(), 1);
}

QTEST_GUILESS_MAIN(ScriptsTest)

#include "ScriptsTest.moc"
