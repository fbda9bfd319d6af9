// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

struct Run
{
    int status = -1;
    QString output;
    QString errors;
};

Run run(const QStringList &arguments, const QString &path = qgetenv("PATH"))
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("NERIX_NETWORK");
    environment.insert("PATH", path);
    QProcess script;
    script.setProcessEnvironment(environment);
    script.start(NERIX_SOURCE_DIR "/tools/in-network-namespace.sh", arguments);
    script.waitForFinished();
    return {script.exitCode(), script.readAllStandardOutput(), script.readAllStandardError()};
}

bool isGranted()
{
    return run({"sh", "-c", "echo $NERIX_NETWORK"}).output == "isolated\n";
}

} // namespace

// The script that gives tests a network of their own.
class NetworkNamespaceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testArgumentsArriveUnchanged();
    void testStatusIsTheProgrammes();
    void testInputIsPassedOn();
    void testNetworkIsLoopbackWithFiveAddresses();
    void testNetworksAreApart();
    void testWithoutRightRunsOnTheRealLoopback();
    void testNamesWhatIsMissing();
};

void NetworkNamespaceTest::testArgumentsArriveUnchanged()
{
    QCOMPARE(run({"printf", "<%s>", "a b", "", "*", "$HOME", "it's"}).output,
             QString("<a b><><*><$HOME><it's>"));
}

void NetworkNamespaceTest::testStatusIsTheProgrammes()
{
    QCOMPARE(run({"true"}).status, 0);
    QCOMPARE(run({"sh", "-c", "exit 7"}).status, 7);
}

void NetworkNamespaceTest::testInputIsPassedOn()
{
    QProcess script;
    script.start(NERIX_SOURCE_DIR "/tools/in-network-namespace.sh", {"cat"});
    script.write("over here\n");
    script.closeWriteChannel();
    QVERIFY(script.waitForFinished());
    QCOMPARE(script.readAllStandardOutput(), QByteArray("over here\n"));
}

void NetworkNamespaceTest::testNetworkIsLoopbackWithFiveAddresses()
{
    if (!isGranted()) {
        QSKIP("a network of its own is not granted");
    }
    const Run result = run({"ip", "-4", "-brief", "address"});
    QCOMPARE(result.output.simplified(),
             QString("lo UNKNOWN 127.0.0.1/8 127.0.0.2/8 127.0.0.3/8 127.0.0.4/8 127.0.0.5/8"));
    QCOMPARE(result.errors, QString());
}

void NetworkNamespaceTest::testNetworksAreApart()
{
    if (!isGranted()) {
        QSKIP("a network of its own is not granted");
    }
    const QString first = run({"readlink", "/proc/self/ns/net"}).output;
    QVERIFY(first.startsWith("net:["));
    QVERIFY(first.trimmed() != QFile::symLinkTarget("/proc/self/ns/net").section('/', -1));
}

void NetworkNamespaceTest::testWithoutRightRunsOnTheRealLoopback()
{
    QTemporaryDir folder;
    QFile refusing(folder.filePath("unshare"));
    QVERIFY(refusing.open(QIODevice::WriteOnly));
    refusing.write("#!/bin/sh\necho 'unshare failed: Operation not permitted' >&2\nexit 1\n");
    refusing.close();
    QVERIFY(refusing.setPermissions(QFile::ReadOwner | QFile::ExeOwner));

    const Run result =
        run({"sh", "-c", "echo $NERIX_NETWORK; exit 3"}, folder.path() + ':' + qgetenv("PATH"));
    QCOMPARE(result.output, QString("loopback\n"));
    QCOMPARE(result.status, 3);
    QCOMPARE(result.errors, QString("in-network-namespace.sh: no network of its own is granted,"
                                    " running on the real loopback\n"));
}

void NetworkNamespaceTest::testNamesWhatIsMissing()
{
    const Run result = run({});
    QCOMPARE(result.status, 2);
    QCOMPARE(result.errors, QString("in-network-namespace.sh: name a program to run\n"));
}

QTEST_GUILESS_MAIN(NetworkNamespaceTest)

#include "NetworkNamespaceTest.moc"
