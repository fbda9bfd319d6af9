// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Options.h"

#include <stdexcept>

#include <QTest>

using Words = std::vector<std::string>;
Q_DECLARE_METATYPE(Words)

// What the command line may say.
class OptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testDefaults();
    void testEachOptionIsTaken();
    void testValueMayFollowAnEqualsSign();
    void testSerialIsMadeOfTheAddress();
    void testHelpAndVersion();
    void testHelpNamesEachOptionAndCommand();
    void testRefused_data();
    void testRefused();
    void testLongestTextsFit();
};

void OptionsTest::testDefaults()
{
    const Simulator::Options options = Simulator::parsedOptions({});
    QCOMPARE(options.address, std::string("127.0.0.1"));
    QCOMPARE(options.identity.vendor, std::string("Ostrand"));
    QCOMPARE(options.identity.model, std::string("XQZ-2000"));
    QCOMPARE(options.identity.serial, std::string("127000000001"));
    QCOMPARE(options.identity.userName, std::string());
    QCOMPARE(options.loss, 0.0);
    QCOMPARE(options.featureCount, 43);
    QVERIFY(!options.help);
    QVERIFY(!options.version);
}

void OptionsTest::testEachOptionIsTaken()
{
    const Simulator::Options options = Simulator::parsedOptions(
        {"--address", "127.0.0.2", "--serial", "A-7_b.c", "--vendor", "Some Maker", "--model",
         "TOG-1", "--user-name", "left one", "--loss", "0.05", "--features", "840"});
    QCOMPARE(options.address, std::string("127.0.0.2"));
    QCOMPARE(options.identity.serial, std::string("A-7_b.c"));
    QCOMPARE(options.identity.vendor, std::string("Some Maker"));
    QCOMPARE(options.identity.model, std::string("TOG-1"));
    QCOMPARE(options.identity.userName, std::string("left one"));
    QCOMPARE(options.loss, 0.05);
    QCOMPARE(options.featureCount, 840);
}

void OptionsTest::testValueMayFollowAnEqualsSign()
{
    QCOMPARE(Simulator::parsedOptions({"--model=A=7"}).identity.model, std::string("A=7"));
}

void OptionsTest::testSerialIsMadeOfTheAddress()
{
    QCOMPARE(Simulator::parsedOptions({"--address", "127.10.0.203"}).identity.serial,
             std::string("127010000203"));
}

void OptionsTest::testHelpAndVersion()
{
    QVERIFY(Simulator::parsedOptions({"--help"}).help);
    QVERIFY(Simulator::parsedOptions({"-h"}).help);
    QVERIFY(Simulator::parsedOptions({"--version"}).version);
}

void OptionsTest::testHelpNamesEachOptionAndCommand()
{
    const QByteArray text = QByteArray::fromStdString(Simulator::helpText());
    for (const char *word :
         {"--address", "--serial", "--vendor", "--model", "--user-name", "--loss", "--features",
          "--help", "--version", "loss RATIO", "vanish", "return", "quit"}) {
        QVERIFY2(text.contains(word), word);
    }
    QVERIFY(text.endsWith('\n'));
}

void OptionsTest::testRefused_data()
{
    QTest::addColumn<Words>("arguments");
    QTest::addColumn<QByteArray>("line");

    const auto row = [](const char *name, const Words &arguments, const char *line) {
        QTest::newRow(name) << arguments << QByteArray(line);
    };
    row("an unknown option", {"--colour"},
        "Unknown option --colour: see nerix-camera-simulator --help");
    row("an option without its value", {"--loss"},
        "Missing argument for --loss: see nerix-camera-simulator --help");
    row("a stray word", {"camera"},
        "unexpected argument camera: see nerix-camera-simulator --help");
    row("an address of a real network", {"--address", "192.168.0.9"},
        "--address \"192.168.0.9\" is no loopback address: give one within 127.0.0.0/8, such as"
        " 127.0.0.1, so that nothing is served to a network");
    row("the address of all interfaces", {"--address", "0.0.0.0"},
        "--address \"0.0.0.0\" is no loopback address: give one within 127.0.0.0/8, such as"
        " 127.0.0.1, so that nothing is served to a network");
    row("a name for an address", {"--address", "localhost"},
        "--address \"localhost\" is no loopback address: give one within 127.0.0.0/8, such as"
        " 127.0.0.1, so that nothing is served to a network");
    row("half an address", {"--address", "127.0.0"},
        "--address \"127.0.0\" is no loopback address: give one within 127.0.0.0/8, such as"
        " 127.0.0.1, so that nothing is served to a network");
    row("a loss above 1", {"--loss", "5"},
        "--loss \"5\" is no ratio: give a number from 0 to 1, such as 0.05");
    row("a loss below 0", {"--loss", "-0.5"},
        "--loss \"-0.5\" is no ratio: give a number from 0 to 1, such as 0.05");
    row("fewer features than there are", {"--features", "42"},
        "--features \"42\" is out of range: give a whole number from 43 to 1323");
    row("more features than registers hold", {"--features", "1324"},
        "--features \"1324\" is out of range: give a whole number from 43 to 1323");
    row("a number of features in words", {"--features", "many"},
        "--features \"many\" is out of range: give a whole number from 43 to 1323");
    row("an empty serial number", {"--serial", ""},
        "--serial \"\" does not fit: give 1 to 15 printable ASCII characters");
    row("a serial number that is too long", {"--serial", "1234567890123456"},
        "--serial \"1234567890123456\" does not fit: give 1 to 15 printable ASCII characters");
    row("a serial number with a blank", {"--serial", "A 7"},
        "--serial \"A 7\" does not fit: give letters, digits, - _ and . only");
    row("an empty vendor", {"--vendor", ""},
        "--vendor \"\" does not fit: give 1 to 31 printable ASCII characters");
    row("a model that is too long", {"--model", "12345678901234567890123456789012"},
        "--model \"12345678901234567890123456789012\" does not fit: give 1 to 31 printable ASCII"
        " characters");
    row("a model with a line end", {"--model", "A\nB"},
        "--model \"A\nB\" does not fit: give 1 to 31 printable ASCII characters");
    row("a user name that is not ASCII", {"--user-name", "Gr\xC3\xBCn"},
        "--user-name \"Gr\xC3\xBCn\" does not fit: give 1 to 15 printable ASCII characters");
}

void OptionsTest::testRefused()
{
    QFETCH(Words, arguments);
    QFETCH(QByteArray, line);
    try {
        Simulator::parsedOptions(arguments);
        QFAIL("accepted");
    } catch (const std::invalid_argument &refusal) {
        QCOMPARE(QByteArray(refusal.what()), line);
    }
}

void OptionsTest::testLongestTextsFit()
{
    const std::string text31(31, 'x');
    const std::string text15(15, 'x');
    const Simulator::Options options = Simulator::parsedOptions(
        {"--vendor", text31, "--model", text31, "--serial", text15, "--user-name", text15});
    QCOMPARE(options.identity.vendor, text31);
    QCOMPARE(options.identity.model, text31);
    QCOMPARE(options.identity.serial, text15);
    QCOMPARE(options.identity.userName, text15);
}

QTEST_APPLESS_MAIN(OptionsTest)

#include "OptionsTest.moc"
