// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/PixelFormat.h"

#include "plugins/imageview/CPixelRows.h"
#include "plugins/imageview/ImageConversion.h"
#include "TestImage.h"

#include <QTest>

using namespace ImageView;

// Which formats are known, and what is said of an image that cannot be shown.
class PixelFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testSize_data();
    void testSize();
    void testNames_data();
    void testNames();
    void testProblem_data();
    void testProblem();
    void testAnImageThatCannotBeShownIsNull();
};

void PixelFormatTest::testSize_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("bits");
    QTest::addColumn<int>("channels");
    QTest::addColumn<int>("bytes"); // of 4 x 3 pixels

    QTest::newRow("Mono8") << 0x01080001U << "Mono8" << 8 << 1 << 12;
    QTest::newRow("Mono10") << 0x01100003U << "Mono10" << 10 << 1 << 24;
    QTest::newRow("Mono10p") << 0x010A0046U << "Mono10p" << 10 << 1 << 15;
    QTest::newRow("Mono10Packed") << 0x010C0004U << "Mono10Packed" << 10 << 1 << 18;
    QTest::newRow("Mono12") << 0x01100005U << "Mono12" << 12 << 1 << 24;
    QTest::newRow("Mono12p") << 0x010C0047U << "Mono12p" << 12 << 1 << 18;
    QTest::newRow("Mono12Packed") << 0x010C0006U << "Mono12Packed" << 12 << 1 << 18;
    QTest::newRow("Mono16") << 0x01100007U << "Mono16" << 16 << 1 << 24;
    QTest::newRow("BayerRG8") << 0x01080009U << "BayerRG8" << 8 << 3 << 12;
    QTest::newRow("BayerGR8") << 0x01080008U << "BayerGR8" << 8 << 3 << 12;
    QTest::newRow("BayerGB8") << 0x0108000AU << "BayerGB8" << 8 << 3 << 12;
    QTest::newRow("BayerBG8") << 0x0108000BU << "BayerBG8" << 8 << 3 << 12;
    QTest::newRow("BayerRG12") << 0x01100011U << "BayerRG12" << 12 << 3 << 24;
    QTest::newRow("BayerBG10p") << 0x010A0052U << "BayerBG10p" << 10 << 3 << 15;
    QTest::newRow("BayerGB12Packed") << 0x010C002CU << "BayerGB12Packed" << 12 << 3 << 18;
    QTest::newRow("RGB8") << 0x02180014U << "RGB8" << 8 << 3 << 36;
    QTest::newRow("BGR8") << 0x02180015U << "BGR8" << 8 << 3 << 36;
    QTest::newRow("BGRa8") << 0x02200017U << "BGRa8" << 8 << 3 << 48;
    QTest::newRow("RGB16") << 0x02300033U << "RGB16" << 16 << 3 << 72;
    QTest::newRow("YUV422_8_UYVY") << 0x0210001FU << "YUV422_8_UYVY" << 8 << 3 << 24;
    QTest::newRow("YUV422_8") << 0x02100032U << "YUV422_8" << 8 << 3 << 24;
}

void PixelFormatTest::testSize()
{
    QFETCH(quint32, code);
    QFETCH(int, bytes);

    const PixelFormat *format = findPixelFormat(code);

    QVERIFY(format);
    QTEST(QString::fromLatin1(format->name), "name");
    QTEST(format->bits, "bits");
    QTEST(format->channels(), "channels");
    const auto size = static_cast<std::size_t>(bytes);
    const std::vector<std::uint8_t> enough(size);
    const std::vector<std::uint8_t> tooFew(size - 1);
    QVERIFY(problemOf(testImage(4, 3, code, enough)) == Problem::None);
    QVERIFY(problemOf(testImage(4, 3, code, tooFew)) == Problem::TooFewBytes);
}

void PixelFormatTest::testNames_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("name");

    QTest::newRow("a format that is shown") << 0x01080001U << "Mono8";
    QTest::newRow("one that is only known by its name") << 0x02180021U << "RGB8_Planar";
    QTest::newRow("a maker's own has its code") << 0x810C0001U << "0x810c0001";
    QTest::newRow("the code has eight digits") << 0x5U << "0x00000005";
}

void PixelFormatTest::testNames()
{
    QFETCH(quint32, code);
    QTEST(pixelFormatName(code), "name");
}

void PixelFormatTest::testProblem_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<int>("bytes");
    QTest::addColumn<int>("problem");

    const int none = int(Problem::None);
    QTest::newRow("more bytes than pixels are fine") << 2 << 2 << 0x01080001U << 9 << none;
    QTest::newRow("no width") << 0 << 2 << 0x01080001U << 9 << int(Problem::NoPixels);
    QTest::newRow("no height") << 2 << 0 << 0x01080001U << 9 << int(Problem::NoPixels);
    QTest::newRow("negative width") << -2 << -2 << 0x01080001U << 9 << int(Problem::NoPixels);
    QTest::newRow("unknown code") << 2 << 2 << 0x810C0001U << 99 << int(Problem::UnknownFormat);
    QTest::newRow("known by its name only")
        << 2 << 2 << 0x02180021U << 99 << int(Problem::UnknownFormat);
    QTest::newRow("an odd number of packed pixels ends early")
        << 3 << 1 << 0x010C0006U << 5 << none;
    QTest::newRow("but not earlier") << 3 << 1 << 0x010C0006U << 4 << int(Problem::TooFewBytes);
    QTest::newRow("10 bits of 3 pixels are 4 bytes") << 3 << 1 << 0x010A0046U << 4 << none;
}

void PixelFormatTest::testProblem()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(quint32, code);
    QFETCH(int, bytes);
    const auto data = std::vector<std::uint8_t>(static_cast<std::size_t>(bytes));
    QTEST(int(problemOf(testImage(width, height, code, data))), "problem");
}

void PixelFormatTest::testAnImageThatCannotBeShownIsNull()
{
    const Nerix::CImage unknown = testImage(1, 1, 0x810C0001, {1, 2, 3, 4});
    QVERIFY(screenImage(unknown).isNull());
    QVERIFY(fileImage(unknown).isNull());
    QVERIFY(valuesAt(unknown, {0, 0}).isEmpty());
}

QTEST_GUILESS_MAIN(PixelFormatTest)
#include "PixelFormatTest.moc"
