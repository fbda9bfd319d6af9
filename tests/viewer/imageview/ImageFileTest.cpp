// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/ImageFile.h"

#include "plugins/imageview/CImageSaving.h"
#include "support/CSmallFiles.h"
#include "TestImage.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace ImageView;

using Bytes = std::vector<std::uint8_t>;
using Values = QVector<int>;

Q_DECLARE_METATYPE(Bytes)

// Files of images, read back.
class ImageFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testGreyValuesAreReadBack_data();
    void testGreyValuesAreReadBack();
    void testColorsAreReadBack_data();
    void testColorsAreReadBack();
    void testErrors_data();
    void testErrors();
    void testFileThatIsThereIsReplaced();
    void testFileThatIsThereIsKeptIfTheNewOneFails();
    void testFileThatIsThereIsKeptIfThereIsNoRoom();
    void testSuggestedName_data();
    void testSuggestedName();
    void testSavingTellsOfItsEnd();
    void testSavingTellsWhatFailed();

private:
    QTemporaryDir m_folder;
};

namespace {

Nerix::CImage greyImage()
{
    return testImage(2, 1, 0x01080001, {7, 200});
}

} // namespace

void ImageFileTest::testGreyValuesAreReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Bytes>("data");
    QTest::addColumn<int>("imageFormat");
    QTest::addColumn<Values>("values");

    const int grey8 = QImage::Format_Grayscale8;
    const int grey16 = QImage::Format_Grayscale16;
    for (const char *suffix : {"png", "tif", "TIFF"}) {
        const QString name = QStringLiteral("image.") + QLatin1String(suffix);
        const QByteArray format = QByteArray(suffix) == "png" ? "png" : "tiff";
        const auto row = [&](const char *what) -> QTestData & {
            return QTest::addRow("%s as %s", what, suffix) << name << format;
        };
        row("Mono8") << 0x01080001U << Bytes{7, 200} << grey8 << Values{7, 200};
        row("Mono10, all bits") << 0x01100003U << Bytes{0x01, 0x02, 0x02, 0x02} << grey16
                                << Values{513 * 64, 514 * 64};
        row("Mono12, all bits") << 0x01100005U << Bytes{0x23, 0x01, 0xFF, 0x0F} << grey16
                                << Values{291 * 16, 4095 * 16};
        row("Mono16, all bits") << 0x01100007U << Bytes{0x34, 0x12, 0xFF, 0xFF} << grey16
                                << Values{0x1234, 0xFFFF};
    }
}

void ImageFileTest::testGreyValuesAreReadBack()
{
    QFETCH(QString, name);
    QFETCH(quint32, code);
    QFETCH(Bytes, data);
    QFETCH(Values, values);
    const QString path = m_folder.filePath(name);

    QCOMPARE(writeImageFile(testImage(2, 1, code, data), path), QString());

    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QTEST(reader.format(), "format");
    const QImage image = reader.read();
    QTEST(int(image.format()), "imageFormat");
    for (int x = 0; x < 2; ++x) {
        const int value = image.format() == QImage::Format_Grayscale16
                              ? reinterpret_cast<const quint16 *>(image.constScanLine(0))[x]
                              : qGray(image.pixel(x, 0));
        QCOMPARE(value, values.at(x));
    }
}

void ImageFileTest::testColorsAreReadBack_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<Bytes>("data");
    QTest::addColumn<Values>("rgb"); // in 16 bits

    QTest::newRow("RGB8 as png") << "c.png" << 0x02180014U << Bytes{1, 2, 3}
                                 << Values{0x0101, 0x0202, 0x0303};
    QTest::newRow("RGB8 as tif") << "c.tif" << 0x02180014U << Bytes{1, 2, 3}
                                 << Values{0x0101, 0x0202, 0x0303};
    const Bytes wide{0x01, 0x10, 0x02, 0x20, 0x03, 0x30};
    QTest::newRow("RGB16 as png, all bits")
        << "w.png" << 0x02300033U << wide << Values{0x1001, 0x2002, 0x3003};
    QTest::newRow("RGB16 as tif, all bits")
        << "w.tif" << 0x02300033U << wide << Values{0x1001, 0x2002, 0x3003};
}

void ImageFileTest::testColorsAreReadBack()
{
    QFETCH(QString, name);
    QFETCH(quint32, code);
    QFETCH(Bytes, data);
    const QString path = m_folder.filePath(name);
    QCOMPARE(writeImageFile(testImage(1, 1, code, data), path), QString());
    const QRgba64 pixel = QImage(path).pixelColor(0, 0).rgba64();
    QTEST((Values{pixel.red(), pixel.green(), pixel.blue()}), "rgb");
}

void ImageFileTest::testErrors_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("message");

    QTest::newRow("a name without a format") << "/tmp/image"
                                             << "/tmp/image is not the name of a PNG or TIFF file: "
                                                "give it one that ends with .png or .tif";
    QTest::newRow("a format that loses values")
        << "/tmp/image.jpg"
        << "/tmp/image.jpg is not the name of a PNG or TIFF file: give it one that ends with .png "
           "or .tif";
    QTest::newRow("a folder that is not there")
        << "/nowhere/image.png"
        << "/nowhere/image.png cannot be written (No such file or directory): choose another "
           "folder, or make room";
}

void ImageFileTest::testErrors()
{
    QFETCH(QString, path);
    QFETCH(QString, message);
    QCOMPARE(writeImageFile(greyImage(), path), message);
}

void ImageFileTest::testFileThatIsThereIsReplaced()
{
    const QString path = m_folder.filePath("there.png");
    QCOMPARE(writeImageFile(testImage(1, 1, 0x01080001, {1}), path), QString());
    QCOMPARE(writeImageFile(greyImage(), path), QString());
    QCOMPARE(QImage(path).size(), QSize(2, 1));
}

void ImageFileTest::testFileThatIsThereIsKeptIfTheNewOneFails()
{
    const QString path = m_folder.filePath("kept.png");
    QCOMPARE(writeImageFile(greyImage(), path), QString());
    QVERIFY(!writeImageFile(testImage(1, 1, 0x810C0001, {1}), path).isEmpty());
    QCOMPARE(QImage(path).size(), QSize(2, 1));
    QCOMPARE(QDir(m_folder.path()).entryList({"kept*"}).size(), 1);
}

void ImageFileTest::testFileThatIsThereIsKeptIfThereIsNoRoom()
{
    const QString path = m_folder.filePath("full.png");
    QCOMPARE(writeImageFile(greyImage(), path), QString());
    // Less than the new image takes, even in Qt's own buffer.
    const CSmallFiles limit(60);
    QCOMPARE(writeImageFile(testImage(1, 1, 0x01080001, {1}), path),
             path + " cannot be written (File too large): choose another folder, or make room");
    QCOMPARE(QImage(path).size(), QSize(2, 1));
}

void ImageFileTest::testSuggestedName_data()
{
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QString>("name");

    QTest::newRow("camera and time") << "Left of the belt"
                                     << "Left of the belt 2026-11-21 14-05-09-007.png";
    QTest::newRow("a name of two lines") << "A\nB"
                                         << "A_B 2026-11-21 14-05-09-007.png";
    QTest::newRow("what file systems refuse") << "a/b\\c:d*e?f\"g<h>i|j"
                                              << "a_b_c_d_e_f_g_h_i_j 2026-11-21 14-05-09-007.png";
    QTest::newRow("letters of any language")
        << QString::fromUtf8("T\xc3\xbcr \xe5\xb7\xa6")
        << QString::fromUtf8("T\xc3\xbcr \xe5\xb7\xa6 2026-11-21 14-05-09-007.png");
}

void ImageFileTest::testSuggestedName()
{
    QFETCH(QString, camera);
    QTEST(suggestedFileName(camera, QDateTime({2026, 11, 21}, {14, 5, 9, 7})), "name");
}

void ImageFileTest::testSavingTellsOfItsEnd()
{
    CImageSaving saving;
    QSignalSpy saved(&saving, &CImageSaving::saved);
    const QString path = m_folder.filePath("saved.tif");
    saving.save(std::make_shared<Nerix::CGrabResultData>(greyImage()), path);
    QVERIFY(saved.wait());
    QCOMPARE(saved.at(0).at(0).toString(), path);
    QCOMPARE(QImage(path).size(), QSize(2, 1));
}

void ImageFileTest::testSavingTellsWhatFailed()
{
    CImageSaving saving;
    QSignalSpy failed(&saving, &CImageSaving::failed);
    saving.save(std::make_shared<Nerix::CGrabResultData>(greyImage()), "/tmp/image");
    QVERIFY(failed.wait());
    QCOMPARE(failed.at(0).at(0).toString(),
             QString("/tmp/image is not the name of a PNG or TIFF file: give it one that ends with "
                     ".png or .tif"));
}

QTEST_GUILESS_MAIN(ImageFileTest)
#include "ImageFileTest.moc"
