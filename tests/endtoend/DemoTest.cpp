// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "Documents.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// What run.sh shows once everything is built.
class DemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void testEndsWell();
    void testShowsTheSessionInItsExactBytes_data();
    void testShowsTheSessionInItsExactBytes();
    void testShowsNothingButOneLineWithoutConsent();
    void testReadmeShowsWhatItPrints();
    void testKeepsToItsFolder();

private:
    QTemporaryDir m_folder;
    int m_status = -1;
    QStringList m_lines;
};

void DemoTest::initTestCase()
{
    QVERIFY(QDir(m_folder.path()).mkdir("home"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("HOME", m_folder.filePath("home"));
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        environment.remove(name);
    }
    QProcess demo;
    demo.setProcessEnvironment(environment);
    demo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    demo.start(NERIX_SOURCE_DIR "/viewer/demo/run-demo.sh",
               {NERIX_BUILD_DIR, m_folder.filePath("demo")});
    QVERIFY(demo.waitForFinished(120000));
    m_status = demo.exitStatus() == QProcess::NormalExit ? demo.exitCode() : -1;
    m_lines = QString::fromUtf8(demo.readAllStandardOutput()).split('\n');
}

void DemoTest::testEndsWell()
{
    QCOMPARE(m_status, 0);
}

void DemoTest::testShowsTheSessionInItsExactBytes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("SessionStarted")
        << "SessionStarted"
        << R"({"EventCategory":"GeneralEvent","EventName":"SessionStarted"})";
    QTest::newRow("InitialCameraCount with 1")
        << "InitialCameraCount"
        << R"({"EventCategory":"GeneralEvent","EventName":"InitialCameraCount",)"
           R"("InitialCameraCount":1})";
    QTest::newRow("SessionEnded after the camera was unplugged")
        << "SessionEnded"
        << R"({"EventCategory":"GeneralEvent","EventName":"SessionEnded","FinalCameraCount":0,)"
           R"("TotalUsedCameraCount":1})";
}

void DemoTest::testShowsTheSessionInItsExactBytes()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    const QRegularExpression line("^stored +GeneralEvent +" + name + " +"
                                  + QRegularExpression::escape(text) + '$');
    QCOMPARE(m_lines.filter(line).size(), 1);
}

void DemoTest::testShowsNothingButOneLineWithoutConsent()
{
    const int heading = m_lines.indexOf("The same session of a user who was never asked:");
    QVERIFY(heading > 0);
    QCOMPARE(m_lines.at(heading + 1), QString("Nothing was sent: no event was stored, and the "
                                              "analytics library has made no file."));
    QCOMPARE(m_lines.at(heading + 2), QString());
    QVERIFY(m_lines.mid(heading).filter("stored  ").isEmpty());
}

void DemoTest::testReadmeShowsWhatItPrints()
{
    const QStringList shown = codeBlocks(readDocument("README.md"), "text").value(0).split('\n');
    QVERIFY(shown.size() > 8);
    for (const QString &line : shown) {
        QVERIFY2(line == "..." || m_lines.contains(line), qPrintable(line));
    }
}

void DemoTest::testKeepsToItsFolder()
{
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(m_folder.filePath("home")).entryList(all), QStringList());
}

QTEST_GUILESS_MAIN(DemoTest)

#include "DemoTest.moc"
