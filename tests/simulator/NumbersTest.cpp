// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Numbers.h"

#include <QTest>

// Numbers as people type them.
class NumbersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testRatio_data();
    void testRatio();
    void testCount_data();
    void testCount();
};

void NumbersTest::testRatio_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("isRatio");
    QTest::addColumn<double>("ratio");

    QTest::newRow("nothing is lost") << QByteArray("0") << true << 0.0;
    QTest::newRow("everything is lost") << QByteArray("1") << true << 1.0;
    QTest::newRow("a fraction") << QByteArray("0.05") << true << 0.05;
    QTest::newRow("a fraction without its zero") << QByteArray(".5") << true << 0.5;
    QTest::newRow("an exponent") << QByteArray("1e-3") << true << 0.001;
    QTest::newRow("more than all") << QByteArray("1.01") << false << 0.0;
    QTest::newRow("less than nothing") << QByteArray("-0.1") << false << 0.0;
    QTest::newRow("percent") << QByteArray("5%") << false << 0.0;
    QTest::newRow("a comma") << QByteArray("0,05") << false << 0.0;
    QTest::newRow("no number") << QByteArray("much") << false << 0.0;
    QTest::newRow("not a number") << QByteArray("nan") << false << 0.0;
    QTest::newRow("hexadecimal") << QByteArray("0x1") << false << 0.0;
    QTest::newRow("two numbers") << QByteArray("0.1 0.2") << false << 0.0;
    QTest::newRow("half a number") << QByteArray("1e") << false << 0.0;
    QTest::newRow("nothing at all") << QByteArray("") << false << 0.0;
}

void NumbersTest::testRatio()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isRatio);
    QFETCH(double, ratio);

    const auto parsed = Simulator::parsedRatio(text.toStdString());
    QCOMPARE(parsed.has_value(), isRatio);
    QCOMPARE(parsed.value_or(0.0), ratio);
}

void NumbersTest::testCount_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("count"); // -1: none

    QTest::newRow("zero") << QByteArray("0") << 0;
    QTest::newRow("a number") << QByteArray("840") << 840;
    QTest::newRow("the longest") << QByteArray("999999999") << 999999999;
    QTest::newRow("too long") << QByteArray("1000000000") << -1;
    QTest::newRow("negative") << QByteArray("-1") << -1;
    QTest::newRow("signed") << QByteArray("+1") << -1;
    QTest::newRow("a fraction") << QByteArray("1.5") << -1;
    QTest::newRow("a word") << QByteArray("many") << -1;
    QTest::newRow("a blank before") << QByteArray(" 1") << -1;
    QTest::newRow("nothing at all") << QByteArray("") << -1;
}

void NumbersTest::testCount()
{
    QFETCH(QByteArray, text);
    QFETCH(int, count);
    QCOMPARE(Simulator::parsedCount(text.toStdString()).value_or(-1), count);
}

QTEST_APPLESS_MAIN(NumbersTest)

#include "NumbersTest.moc"
