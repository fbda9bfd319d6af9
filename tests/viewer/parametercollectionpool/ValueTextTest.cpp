// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "plugins/parametercollectionpool/ValueText.h"

#include <limits>

#include <QTest>

using namespace ParameterCollectionPool;

// Values as text and back.
class ValueTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void integerFromText_data();
    void integerFromText();
    void floatToText_data();
    void floatToText();
    void floatFromText_data();
    void floatFromText();
    void booleanFromText_data();
    void booleanFromText();
    void bytesFromText_data();
    void bytesFromText();
    void bytesToText();
};

void ValueTextTest::integerFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOne");
    QTest::addColumn<qint64>("value");
    const auto row = [](const char *rule, const char *text, bool isOne, qint64 value = 0) {
        QTest::newRow(rule) << QString::fromLatin1(text) << isOne << value;
    };
    row("decimal", "512", true, 512);
    row("negative", "-7", true, -7);
    row("blanks around it", " 12 ", true, 12);
    row("hexadecimal", "0x1F", true, 31);
    row("hexadecimal with a large X", "0X1f", true, 31);
    row("largest", "9223372036854775807", true, std::numeric_limits<qint64>::max());
    row("smallest", "-9223372036854775808", true, std::numeric_limits<qint64>::min());
    row("one too large", "9223372036854775808", false);
    row("nothing", "", false);
    row("a word", "many", false);
    row("a fraction", "1.5", false);
    row("a sign after 0x", "0x-5", false);
    row("0x twice", "0x0x5", false);
    row("0x alone", "0x", false);
    row("grouped digits", "1,000", false);
}

void ValueTextTest::integerFromText()
{
    QFETCH(QString, text);
    const auto value = ValueText::toInteger(text);
    QTEST(value.has_value(), "isOne");
    QTEST(value.value_or(0), "value");
}

void ValueTextTest::floatToText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *rule, double value, const char *text) {
        QTest::newRow(rule) << value << QString::fromLatin1(text);
    };
    row("whole", 10000.0, "10000");
    row("a round hundred thousand has no power", 100000.0, "100000");
    row("fraction", 41.5, "41.5");
    row("shortest that is exact", 0.1, "0.1");
    row("third", 1.0 / 3.0, "0.3333333333333333");
    row("negative", -2.25, "-2.25");
    row("zero", 0.0, "0");
    row("small", 0.00001, "0.00001");
    row("very small has a power", 0.000001, "1e-06");
    row("very large has a power", 1e300, "1e+300");
}

void ValueTextTest::floatToText()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QCOMPARE(ValueText::fromFloat(value), text);
    QVERIFY(*ValueText::toFloat(text) == value);
}

void ValueTextTest::floatFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOne");
    QTest::newRow("point") << QStringLiteral("1.5") << true;
    QTest::newRow("power") << QStringLiteral("15e-1") << true;
    QTest::newRow("blanks around it") << QStringLiteral(" 1.5 ") << true;
    QTest::newRow("comma") << QStringLiteral("1,5") << false;
    QTest::newRow("infinite") << QStringLiteral("inf") << false;
    QTest::newRow("not a number") << QStringLiteral("nan") << false;
    QTest::newRow("too large") << QStringLiteral("1e999") << false;
    QTest::newRow("nothing") << QString() << false;
}

void ValueTextTest::floatFromText()
{
    QFETCH(QString, text);
    QFETCH(bool, isOne);
    const auto value = ValueText::toFloat(text);
    QCOMPARE(value.has_value(), isOne);
    QVERIFY(!isOne || *value == 1.5);
}

void ValueTextTest::booleanFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("value"); // -1: none
    QTest::newRow("true") << QStringLiteral("true") << 1;
    QTest::newRow("TRUE") << QStringLiteral("TRUE") << 1;
    QTest::newRow("1") << QStringLiteral("1") << 1;
    QTest::newRow("false") << QStringLiteral("False") << 0;
    QTest::newRow("0") << QStringLiteral(" 0") << 0;
    QTest::newRow("2") << QStringLiteral("2") << -1;
    QTest::newRow("yes") << QStringLiteral("yes") << -1;
    QTest::newRow("nothing") << QString() << -1;
}

void ValueTextTest::booleanFromText()
{
    QFETCH(QString, text);
    const auto value = ValueText::toBoolean(text);
    QTEST(value ? int(*value) : -1, "value");
}

void ValueTextTest::bytesFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isOne");
    QTest::addColumn<QByteArray>("value");
    const auto row = [](const char *rule, const char *text, bool isOne, const char *value = "") {
        QTest::newRow(rule) << QString::fromLatin1(text) << isOne << QByteArray(value);
    };
    row("two bytes", "0x4a4B", true, "JK");
    row("none", "0x", true);
    row("half a byte", "0x4", false);
    row("no prefix", "4a4b", false);
    row("other letters", "0xgg", false);
    row("nothing", "", false);
}

void ValueTextTest::bytesFromText()
{
    QFETCH(QString, text);
    const auto value = ValueText::toBytes(text);
    QTEST(value.has_value(), "isOne");
    QTEST(value.value_or(QByteArray("")), "value");
}

void ValueTextTest::bytesToText()
{
    QCOMPARE(ValueText::fromBytes(QByteArray::fromHex("00ff10")), QStringLiteral("0x00ff10"));
}

QTEST_GUILESS_MAIN(ValueTextTest)
#include "ValueTextTest.moc"
