// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/ImageConversion.h"
#include "TestImage.h"

#include <QTest>

using namespace ImageView;

using Bytes = std::vector<std::uint8_t>;
using Values = QVector<int>;

Q_DECLARE_METATYPE(Bytes)

// Grey images: each value, on the screen and in a file. The expected values are worked out by hand
// from the bytes.
class GreyImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testValues_data();
    void testValues();
    void testLinesFollowEachOtherWithoutAGap();
    void testEveryValueOf12BitsCanBeToldFromTheOthersInAFile();
    void testNoValueOutsideOfTheImage();
    void testBytesBehindTheImageAreIgnored();
};

void GreyImageTest::testValues_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Bytes>("data");
    QTest::addColumn<Values>("values"); // of the two pixels, in the camera's bit depth
    QTest::addColumn<Values>("onScreen");
    QTest::addColumn<Values>("inFile");

    QTest::newRow("Mono8") << 0x01080001U << Bytes{7, 255} << Values{7, 255} << Values{7, 255}
                           << Values{7, 255};
    QTest::newRow("Mono10: the lower byte first")
        << 0x01100003U << Bytes{0x01, 0x02, 0xFF, 0x03} << Values{513, 1023} << Values{128, 255}
        << Values{32832, 65472};
    QTest::newRow("Mono10: what is above its bits is ignored")
        << 0x01100003U << Bytes{0x01, 0xFE, 0x00, 0x04} << Values{513, 0} << Values{128, 0}
        << Values{32832, 0};
    QTest::newRow("Mono10p: 10 bits, the next 10 bits, lowest first")
        << 0x010A0046U << Bytes{0x01, 0xFE, 0x07} << Values{513, 511} << Values{128, 127}
        << Values{32832, 32704};
    QTest::newRow("Mono10Packed: the lower bits are in the middle")
        << 0x010C0004U << Bytes{0x80, 0x21, 0xFF} << Values{513, 1022} << Values{128, 255}
        << Values{32832, 65408};
    QTest::newRow("Mono12") << 0x01100005U << Bytes{0x23, 0x01, 0xFF, 0x0F} << Values{291, 4095}
                            << Values{18, 255} << Values{4656, 65520};
    QTest::newRow("Mono12p") << 0x010C0047U << Bytes{0x23, 0x61, 0x45} << Values{291, 1110}
                             << Values{18, 69} << Values{4656, 17760};
    QTest::newRow("Mono12Packed: the lower bits are in the middle")
        << 0x010C0006U << Bytes{0x12, 0x63, 0x45} << Values{291, 1110} << Values{18, 69}
        << Values{4656, 17760};
    QTest::newRow("Mono14") << 0x01100025U << Bytes{0x00, 0x20, 0xFF, 0x3F} << Values{8192, 16383}
                            << Values{128, 255} << Values{32768, 65532};
    QTest::newRow("Mono16") << 0x01100007U << Bytes{0x34, 0x12, 0xFF, 0xFF} << Values{4660, 65535}
                            << Values{18, 255} << Values{4660, 65535};
}

void GreyImageTest::testValues()
{
    QFETCH(quint32, code);
    QFETCH(Bytes, data);
    QFETCH(Values, values);
    QFETCH(Values, onScreen);
    QFETCH(Values, inFile);
    const Nerix::CImage image = testImage(2, 1, code, data);

    const QImage screen = screenImage(image);
    const QImage file = fileImage(image);

    QCOMPARE(int(screen.format()), int(QImage::Format_RGB32));
    QCOMPARE(screen.size(), QSize(2, 1));
    const bool isWide = code != 0x01080001U;
    QCOMPARE(int(file.format()),
             int(isWide ? QImage::Format_Grayscale16 : QImage::Format_Grayscale8));
    for (int x = 0; x < 2; ++x) {
        QCOMPARE(valuesAt(image, {x, 0}), Values{values.at(x)});
        const int grey = onScreen.at(x);
        QCOMPARE(screen.pixel(x, 0), qRgb(grey, grey, grey));
        const int inLine = isWide ? reinterpret_cast<const quint16 *>(file.constScanLine(0))[x]
                                  : file.constScanLine(0)[x];
        QCOMPARE(inLine, inFile.at(x));
    }
}

void GreyImageTest::testLinesFollowEachOtherWithoutAGap()
{
    // 3 x 3 pixels of 10 bits with the values 1 to 9: the second line begins within a byte.
    const Nerix::CImage image = testImage(
        3, 3, 0x010A0046, {0x01, 0x08, 0x30, 0x00, 0x01, 0x05, 0x18, 0x70, 0x00, 0x02, 0x09, 0x00});
    for (int i = 0; i < 9; ++i) {
        QCOMPARE(valuesAt(image, {i % 3, i / 3}), Values{i + 1});
    }
}

void GreyImageTest::testEveryValueOf12BitsCanBeToldFromTheOthersInAFile()
{
    Bytes data;
    for (unsigned value = 0; value < 4096; ++value) {
        data.push_back(std::uint8_t(value & 0xFFU));
        data.push_back(std::uint8_t(value >> 8U));
    }
    const QImage file = fileImage(testImage(64, 64, 0x01100005, data));
    for (int value = 0; value < 4096; ++value) {
        const auto *line = reinterpret_cast<const quint16 *>(file.constScanLine(value / 64));
        QCOMPARE(line[value % 64] / 16, value);
    }
}

void GreyImageTest::testNoValueOutsideOfTheImage()
{
    const Nerix::CImage image = testImage(2, 1, 0x01080001, {1, 2});
    QVERIFY(valuesAt(image, {-1, 0}).isEmpty());
    QVERIFY(valuesAt(image, {2, 0}).isEmpty());
    QVERIFY(valuesAt(image, {0, 1}).isEmpty());
    QVERIFY(valuesAt(image, {0, -1}).isEmpty());
}

void GreyImageTest::testBytesBehindTheImageAreIgnored()
{
    const QImage screen = screenImage(testImage(1, 2, 0x01080001, {1, 2, 3, 4}));
    QCOMPARE(screen.size(), QSize(1, 2));
    QCOMPARE(screen.pixel(0, 1), qRgb(2, 2, 2));
}

QTEST_GUILESS_MAIN(GreyImageTest)
#include "GreyImageTest.moc"
