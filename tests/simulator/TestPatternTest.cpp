// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TestPattern.h"

#include <QByteArray>
#include <QTest>

using namespace Simulator;

namespace {

QByteArray ramp(int size, ImageFormat format, std::size_t shift, const Tone &tone = {})
{
    QByteArray image(size, '\x55');
    fillRamp(reinterpret_cast<std::uint8_t *>(image.data()), static_cast<std::size_t>(size), format,
             shift, toneTable(tone));
    return image.toHex();
}

} // namespace

// What the camera shows, byte by byte.
class TestPatternTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testRamp_data();
    void testRamp();
    void testRampStartsAgainAfter256Greys();
    void testImpossibleFormatLeavesTheImageAlone_data();
    void testImpossibleFormatLeavesTheImageAlone();
    void testTone_data();
    void testTone();
    void testGreyIsTheSameAllOver();
};

void TestPatternTest::testRamp_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("bytesPerPixel");
    QTest::addColumn<int>("shift");
    QTest::addColumn<QByteArray>("image");

    QTest::newRow("each line starts one grey later")
        << 12 << 1 << 0 << QByteArray("000102030102030402030405");
    QTest::newRow("a shift moves it to the left") << 8 << 1 << 2 << QByteArray("0203040503040506");
    QTest::newRow("a shift of 256 is none") << 4 << 1 << 256 << QByteArray("00010203");
    QTest::newRow("two bytes a pixel are the same")
        << 16 << 2 << 0 << QByteArray("00000101020203030101020203030404");
    QTest::newRow("three bytes a pixel are the same")
        << 12 << 3 << 1 << QByteArray("010101020202030303040404");
}

void TestPatternTest::testRamp()
{
    QFETCH(int, size);
    QFETCH(int, bytesPerPixel);
    QFETCH(int, shift);
    QFETCH(QByteArray, image);
    QCOMPARE(
        ramp(size, {4, static_cast<std::size_t>(bytesPerPixel)}, static_cast<std::size_t>(shift)),
        image);
}

void TestPatternTest::testRampStartsAgainAfter256Greys()
{
    QCOMPARE(ramp(258, {258, 1}, 0).right(8), QByteArray("feff0001"));
}

void TestPatternTest::testImpossibleFormatLeavesTheImageAlone_data()
{
    QTest::addColumn<quint64>("width");
    QTest::addColumn<quint64>("bytesPerPixel");

    QTest::newRow("no width") << quint64(0) << quint64(1);
    QTest::newRow("no bytes") << quint64(4) << quint64(0);
    QTest::newRow("a line longer than the image") << quint64(9) << quint64(1);
    QTest::newRow("the widest") << quint64(0xFFFFFFFF) << quint64(31);
}

void TestPatternTest::testImpossibleFormatLeavesTheImageAlone()
{
    QFETCH(quint64, width);
    QFETCH(quint64, bytesPerPixel);
    QCOMPARE(ramp(8, {width, bytesPerPixel}, 0), QByteArray("5555555555555555"));
}

void TestPatternTest::testTone_data()
{
    QTest::addColumn<double>("exposure");
    QTest::addColumn<double>("gain");
    QTest::addColumn<int>("brightness");
    QTest::addColumn<bool>("invert");
    QTest::addColumn<int>("of0");
    QTest::addColumn<int>("of100");
    QTest::addColumn<int>("of200");

    QTest::newRow("neutral") << 10000.0 << 0.0 << 0 << false << 0 << 100 << 200;
    QTest::newRow("half the exposure") << 5000.0 << 0.0 << 0 << false << 0 << 50 << 100;
    QTest::newRow("twice the exposure is cut at white")
        << 20000.0 << 0.0 << 0 << false << 0 << 200 << 255;
    QTest::newRow("20 dB are ten times") << 1000.0 << 200.0 << 0 << false << 0 << 100 << 200;
    QTest::newRow("brighter") << 10000.0 << 0.0 << 60 << false << 60 << 160 << 255;
    QTest::newRow("darker is cut at black") << 10000.0 << 0.0 << -128 << false << 0 << 0 << 72;
    QTest::newRow("inverted") << 10000.0 << 0.0 << 0 << true << 255 << 155 << 55;
}

void TestPatternTest::testTone()
{
    QFETCH(double, exposure);
    QFETCH(double, gain);
    QFETCH(int, brightness);
    QFETCH(bool, invert);

    const ToneTable table = toneTable({exposure, gain, brightness, invert});
    QTEST(int(table[0]), "of0");
    QTEST(int(table[100]), "of100");
    QTEST(int(table[200]), "of200");
}

void TestPatternTest::testGreyIsTheSameAllOver()
{
    QByteArray image(4, '\0');
    fillGrey(reinterpret_cast<std::uint8_t *>(image.data()), 4, toneTable({}));
    QCOMPARE(image.toHex(), QByteArray("80808080"));
}

QTEST_APPLESS_MAIN(TestPatternTest)

#include "TestPatternTest.moc"
