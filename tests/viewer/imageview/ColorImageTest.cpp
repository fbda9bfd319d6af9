// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/ImageConversion.h"
#include "TestImage.h"

#include <QTest>

using namespace ImageView;

using Bytes = std::vector<std::uint8_t>;
using Values = QVector<int>;

Q_DECLARE_METATYPE(Bytes)

namespace {

constexpr quint32 bayerRG8 = 0x01080009;
constexpr quint32 bayerGR8 = 0x01080008;
constexpr quint32 bayerGB8 = 0x0108000A;
constexpr quint32 bayerBG8 = 0x0108000B;

} // namespace

// Images with colours. The expected values are worked out by hand.
class ColorImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testColors_data();
    void testColors();
    void testMissingColorsOfABayerImageAreTheMeanOfTheNeighbours();
    void testBayerPatterns_data();
    void testBayerPatterns();
    void testAPlainAreaHasNoPattern_data();
    void testAPlainAreaHasNoPattern();
    void testWideBayerImageKeepsItsBitsInAFile();
    void testWideColorsKeepTheirBitsInAFile();
    void testOnePixel();
};

void ColorImageTest::testColors_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Bytes>("data");
    QTest::addColumn<Values>("first"); // of two pixels
    QTest::addColumn<Values>("second");

    QTest::newRow("RGB8") << 0x02180014U << Bytes{1, 2, 3, 4, 5, 6} << Values{1, 2, 3}
                          << Values{4, 5, 6};
    QTest::newRow("BGR8") << 0x02180015U << Bytes{1, 2, 3, 4, 5, 6} << Values{3, 2, 1}
                          << Values{6, 5, 4};
    QTest::newRow("RGBa8: alpha is ignored")
        << 0x02200016U << Bytes{1, 2, 3, 9, 4, 5, 6, 9} << Values{1, 2, 3} << Values{4, 5, 6};
    QTest::newRow("BGRa8: alpha is ignored")
        << 0x02200017U << Bytes{1, 2, 3, 9, 4, 5, 6, 9} << Values{3, 2, 1} << Values{6, 5, 4};
    QTest::newRow("YUV422_8_UYVY: grey")
        << 0x0210001FU << Bytes{128, 10, 128, 200} << Values{10, 10, 10} << Values{200, 200, 200};
    QTest::newRow("YUV422_8: grey")
        << 0x02100032U << Bytes{10, 128, 200, 128} << Values{10, 10, 10} << Values{200, 200, 200};
    // 100 + 1.402 x 100 = 240.2; 100 - 0.714136 x 100 = 28.6; 100
    QTest::newRow("YUV422_8: red")
        << 0x02100032U << Bytes{100, 128, 0, 228} << Values{240, 29, 100} << Values{140, 0, 0};
    // 100; 100 - 0.344136 x 50 = 82.8; 100 + 1.772 x 50 = 188.6
    QTest::newRow("YUV422_8_UYVY: blue") << 0x0210001FU << Bytes{178, 100, 128, 255}
                                         << Values{100, 83, 189} << Values{255, 238, 255};
}

void ColorImageTest::testColors()
{
    QFETCH(quint32, code);
    QFETCH(Bytes, data);
    QFETCH(Values, first);
    QFETCH(Values, second);
    const Nerix::CImage image = testImage(2, 1, code, data);

    QCOMPARE(valuesAt(image, {0, 0}), first);
    QCOMPARE(valuesAt(image, {1, 0}), second);
    const QImage screen = screenImage(image);
    QCOMPARE(screen.pixel(0, 0), qRgb(first.at(0), first.at(1), first.at(2)));
    QCOMPARE(screen.pixel(1, 0), qRgb(second.at(0), second.at(1), second.at(2)));
    const QImage file = fileImage(image);
    QCOMPARE(int(file.format()), int(QImage::Format_RGB888));
    QCOMPARE(file.pixel(1, 0), qRgb(second.at(0), second.at(1), second.at(2)));
}

void ColorImageTest::testMissingColorsOfABayerImageAreTheMeanOfTheNeighbours()
{
    // R  G  R  G
    // G  B  G  B
    // R  G  R  G
    // G  B  G  B
    const Nerix::CImage image = testImage(4, 4, bayerRG8,
                                          {
                                              10, 20, 30, 41,   //
                                              50, 60, 70, 80,   //
                                              90, 100, 11, 120, //
                                              13, 140, 15, 160, //
                                          });
    // Blue at (1, 1): red from the corners, green from the sides.
    QCOMPARE(valuesAt(image, {1, 1}), (Values{35, 60, 60})); // (10+30+90+11)/4, (20+50+70+100)/4
    // Red at (2, 2).
    QCOMPARE(valuesAt(image, {2, 2}),
             (Values{11, 76, 110})); // (70+100+120+15)/4, (60+80+140+160)/4
    // Green in a row with blue, at (2, 1): red from above and below, blue from left and right.
    QCOMPARE(valuesAt(image, {2, 1}), (Values{21, 70, 70})); // (30+11)/2 rounds up to 21
    // Green in a row with red, at (1, 2).
    QCOMPARE(valuesAt(image, {1, 2}), (Values{51, 100, 100})); // (90+11)/2, (60+140)/2
    // The corners, where neighbours are mirrored.
    QCOMPARE(valuesAt(image, {0, 0}), (Values{10, 35, 60}));
    QCOMPARE(valuesAt(image, {3, 0}), (Values{30, 41, 80}));
    QCOMPARE(valuesAt(image, {0, 3}), (Values{90, 13, 140}));
    QCOMPARE(valuesAt(image, {3, 3}), (Values{11, 68, 160})); // green (120+15)/2
}

void ColorImageTest::testBayerPatterns_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Bytes>("data");

    // A scene of pure orange, (200, 100, 50), as each pattern sees it.
    QTest::newRow("RG") << bayerRG8 << Bytes{200, 100, 200, 100, 50, 100, 200, 100, 200};
    QTest::newRow("GR") << bayerGR8 << Bytes{100, 200, 100, 50, 100, 50, 100, 200, 100};
    QTest::newRow("GB") << bayerGB8 << Bytes{100, 50, 100, 200, 100, 200, 100, 50, 100};
    QTest::newRow("BG") << bayerBG8 << Bytes{50, 100, 50, 100, 200, 100, 50, 100, 50};
}

void ColorImageTest::testBayerPatterns()
{
    QFETCH(quint32, code);
    QFETCH(Bytes, data);
    const QImage screen = screenImage(testImage(3, 3, code, data));
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(screen.pixel(i % 3, i / 3), qRgb(200, 100, 50));
    }
}

void ColorImageTest::testAPlainAreaHasNoPattern_data()
{
    QTest::addColumn<quint32>("code");

    QTest::newRow("RG") << bayerRG8;
    QTest::newRow("GR") << bayerGR8;
    QTest::newRow("GB") << bayerGB8;
    QTest::newRow("BG") << bayerBG8;
}

void ColorImageTest::testAPlainAreaHasNoPattern()
{
    QFETCH(quint32, code);
    const QImage screen = screenImage(testImage(5, 4, code, Bytes(20, 77)));
    for (int i = 0; i < 20; ++i) {
        QCOMPARE(screen.pixel(i % 5, i / 5), qRgb(77, 77, 77));
    }
}

void ColorImageTest::testWideBayerImageKeepsItsBitsInAFile()
{
    // BayerRG12, 2 x 2: red 4095, green 291 and 293, blue 16.
    const Nerix::CImage image =
        testImage(2, 2, 0x01100011, {0xFF, 0x0F, 0x23, 0x01, 0x25, 0x01, 0x10, 0x00});
    const QImage file = fileImage(image);
    QCOMPARE(int(file.format()), int(QImage::Format_RGBX64));
    QCOMPARE(valuesAt(image, {0, 0}), (Values{4095, 292, 16}));
    const QRgba64 *line = reinterpret_cast<const QRgba64 *>(file.constScanLine(0));
    QCOMPARE(int(line[0].red()), 65520);
    QCOMPARE(int(line[0].green()), 4672);
    QCOMPARE(int(line[0].blue()), 256);
    QCOMPARE(int(line[0].alpha()), 65535);
    QCOMPARE(screenImage(image).pixel(0, 0), qRgb(255, 18, 1));
}

void ColorImageTest::testWideColorsKeepTheirBitsInAFile()
{
    const Nerix::CImage image = testImage(1, 1, 0x02300033, {0x01, 0x10, 0x02, 0x20, 0x03, 0x30});
    const QImage file = fileImage(image);
    const QRgba64 *line = reinterpret_cast<const QRgba64 *>(file.constScanLine(0));
    QCOMPARE(int(line[0].red()), 0x1001);
    QCOMPARE(int(line[0].green()), 0x2002);
    QCOMPARE(int(line[0].blue()), 0x3003);
    QCOMPARE(screenImage(image).pixel(0, 0), qRgb(0x10, 0x20, 0x30));
}

void ColorImageTest::testOnePixel()
{
    QCOMPARE(screenImage(testImage(1, 1, bayerRG8, {9})).size(), QSize(1, 1));
    QCOMPARE(valuesAt(testImage(1, 1, 0x0210001F, {128, 50}), {0, 0}).size(), 3);
}

QTEST_GUILESS_MAIN(ColorImageTest)
#include "ColorImageTest.moc"
