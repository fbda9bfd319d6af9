// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TestMetaData.h"

#include <QJsonDocument>
#include <QTest>

using namespace PluginSystem;

class PluginMetaDataTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testProvides_data();
    void testProvides();
    void testCompatVersionIsTheVersionItselfWhenAbsent();
    void testReadsEveryKey();
    void testFaults_data();
    void testFaults();
    void testReportsEveryFaultAtOnce();
};

namespace {

QJsonObject object(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

void PluginMetaDataTest::testProvides_data()
{
    QTest::addColumn<QString>("versions");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<bool>("expected");

    QTest::newRow("the version itself") << "7.0.0-7.1.0"
                                        << "7.1.0" << true;
    QTest::newRow("the oldest compatible version") << "7.0.0-7.1.0"
                                                   << "7.0.0" << true;
    QTest::newRow("between the two") << "7.0.0-7.1.0"
                                     << "7.0.5" << true;
    QTest::newRow("just below the oldest") << "7.0.0-7.1.0"
                                           << "6.9.9" << false;
    QTest::newRow("just above the version") << "7.0.0-7.1.0"
                                            << "7.1.1" << false;
    QTest::newRow("numbers, not texts: 10 is above 9") << "1.9.0-1.10.0"
                                                       << "1.10.0" << true;
    QTest::newRow("numbers, not texts: 9 is below 10") << "1.10.0-1.11.0"
                                                       << "1.9.0" << false;
    QTest::newRow("7.1 is 7.1.0") << "7.1-7.1"
                                  << "7.1.0" << true;
    QTest::newRow("7.1.0 is 7.1") << "7.1.0-7.1.0"
                                  << "7.1" << true;
    QTest::newRow("7.1 is below 7.1.1") << "7.1.1-7.2"
                                        << "7.1" << false;
    QTest::newRow("four numbers") << "7.1.0.1-7.1.0.9"
                                  << "7.1.0.5" << true;
}

void PluginMetaDataTest::testProvides()
{
    QFETCH(QString, versions);
    QFETCH(QString, wanted);

    const PluginMetaData metaData = testMetaData(QStringLiteral("Alpha"), versions);

    QTEST(metaData.provides(QVersionNumber::fromString(wanted)), "expected");
}

void PluginMetaDataTest::testCompatVersionIsTheVersionItselfWhenAbsent()
{
    QStringList faults;
    const PluginMetaData metaData =
        readMetaData(object(R"({"Name": "Alpha", "Version": "2.0.0"})"), faults);

    QCOMPARE(faults, QStringList());
    QVERIFY(metaData.provides(QVersionNumber(2, 0, 0)));
    QVERIFY(!metaData.provides(QVersionNumber(1, 9, 9)));
    QVERIFY(!PluginMetaData().provides(QVersionNumber(1)));
}

void PluginMetaDataTest::testReadsEveryKey()
{
    QStringList faults;
    const PluginMetaData metaData =
        readMetaData(object(R"({"Name": "Alpha", "Version": "2.1.0", "CompatVersion": "2.0.0",
                   "Vendor": "Ostrand", "Description": "Does it.", "Required": true,
                   "Dependencies": [{"Name": "Beta", "Version": "1.0"},
                                    {"Name": "Gamma", "Version": "3.2.1"}]})"),
                     faults);

    QCOMPARE(faults, QStringList());
    QCOMPARE(metaData.name, QStringLiteral("Alpha"));
    QCOMPARE(metaData.version, QVersionNumber(2, 1, 0));
    QCOMPARE(metaData.compatVersion, QVersionNumber(2, 0, 0));
    QCOMPARE(metaData.vendor, QStringLiteral("Ostrand"));
    QCOMPARE(metaData.description, QStringLiteral("Does it."));
    QCOMPARE(metaData.required, true);
    QCOMPARE(metaData.identifier, QStringLiteral("example.ostrand.NerixViewer.IPlugin/1"));
    QCOMPARE(metaData.dependencies.size(), 2);
    QCOMPARE(metaData.dependencies.at(0).name, QStringLiteral("Beta"));
    QCOMPARE(metaData.dependencies.at(0).version, QVersionNumber(1, 0));
    QCOMPARE(metaData.dependencies.at(1).name, QStringLiteral("Gamma"));
    QCOMPARE(metaData.dependencies.at(1).version, QVersionNumber(3, 2, 1));
}

void PluginMetaDataTest::testFaults_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");

    QTest::newRow("no name") << QByteArray(R"({"Version": "1.0"})") << "it has no \"Name\"";
    QTest::newRow("an empty name")
        << QByteArray(R"({"Name": "", "Version": "1.0"})") << "it has no \"Name\"";
    QTest::newRow("a name that is no text")
        << QByteArray(R"({"Name": 7, "Version": "1.0"})") << "it has no \"Name\"";
    QTest::newRow("no version") << QByteArray(R"({"Name": "A"})")
                                << "it has the \"Version\" \"\" instead of numbers with dots";
    QTest::newRow("a version with letters")
        << QByteArray(R"({"Name": "A", "Version": "7.1-beta"})")
        << "it has the \"Version\" \"7.1-beta\" instead of numbers with dots";
    QTest::newRow("a version that is a number")
        << QByteArray(R"({"Name": "A", "Version": 7})")
        << "it has the \"Version\" \"\" instead of numbers with dots";
    QTest::newRow("a wrong compatible version")
        << QByteArray(R"({"Name": "A", "Version": "7.1", "CompatVersion": "old"})")
        << "it has the \"CompatVersion\" \"old\" instead of numbers with dots";
    QTest::newRow("a compatible version above the version")
        << QByteArray(R"({"Name": "A", "Version": "7.1", "CompatVersion": "7.2"})")
        << "its \"CompatVersion\" 7.2 is above its \"Version\" 7.1";
    QTest::newRow("dependencies that are no list")
        << QByteArray(R"({"Name": "A", "Version": "7.1", "Dependencies": "B"})")
        << "its \"Dependencies\" is not a list";
    QTest::newRow("a dependency without a name")
        << QByteArray(R"({"Name": "A", "Version": "7.1", "Dependencies": [{"Version": "1"}]})")
        << "entry 1 of \"Dependencies\" has no \"Name\"";
    QTest::newRow("a dependency without a version")
        << QByteArray(R"({"Name": "A", "Version": "7.1", "Dependencies":
                          [{"Name": "B", "Version": "1"}, {"Name": "C"}]})")
        << "entry 2 of \"Dependencies\" has the \"Version\" \"\" instead of numbers with dots";
}

void PluginMetaDataTest::testFaults()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);

    QStringList faults;
    readMetaData(object(json), faults);

    QCOMPARE(faults, QStringList(expected));
}

void PluginMetaDataTest::testReportsEveryFaultAtOnce()
{
    QStringList faults;
    const PluginMetaData metaData =
        readMetaData(object(R"({"Vendor": "Ostrand", "Dependencies": [7]})"), faults);

    const QStringList expected{
        QStringLiteral("it has no \"Name\""),
        QStringLiteral("it has the \"Version\" \"\" instead of numbers with dots"),
        QStringLiteral("entry 1 of \"Dependencies\" has no \"Name\""),
        QStringLiteral("entry 1 of \"Dependencies\" has the \"Version\" \"\" instead of numbers "
                       "with dots")};
    QCOMPARE(faults, expected);
    QCOMPARE(metaData.vendor, QStringLiteral("Ostrand"));
}

QTEST_GUILESS_MAIN(PluginMetaDataTest)
#include "PluginMetaDataTest.moc"
