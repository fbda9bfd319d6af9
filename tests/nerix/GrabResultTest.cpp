// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Nerix/CGrabResultData.h>

#include <memory>
#include <utility>
#include <vector>

#include <QTest>

using GenICam::gcstring;
using Nerix::CGrabResultData;
using Nerix::CImage;

class GrabResultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testText_data();
    void testText();
    void testTextIsACopy();
    void testImage();
    void testFailure_data();
    void testFailure();
    void testCopiesShareThePixels();
};

void GrabResultTest::testText_data()
{
    QTest::addColumn<QByteArray>("given");

    QTest::newRow("a null text is not an empty one") << QByteArray();
    QTest::newRow("an empty text is not a null one") << QByteArray("");
    QTest::newRow("bytes are kept as they are") << QByteArray("Gr\xc3\xb6\xc3\x9f"
                                                              "e \xff");
}

void GrabResultTest::testText()
{
    QFETCH(QByteArray, given);
    const char *bytes = given.isNull() ? nullptr : given.constData();

    const gcstring text(bytes);

    QCOMPARE(text.c_str() == nullptr, given.isNull());
    QCOMPARE(QByteArray(text.c_str()), given);
    QVERIFY(!gcstring().c_str());
}

void GrabResultTest::testTextIsACopy()
{
    char bytes[] = "abc";
    const gcstring text(bytes);
    const gcstring copy = text;
    bytes[0] = 'x';

    QCOMPARE(text.c_str(), "abc");
    QCOMPARE(copy.c_str(), "abc");
    QVERIFY(copy.c_str() != text.c_str());
}

void GrabResultTest::testImage()
{
    CImage image;
    image.width = 2;
    image.height = 1;
    image.pixelFormat = 0x01080001;
    image.data = {7, 9};
    const CGrabResultData result(std::move(image));

    QVERIFY(result.GrabSucceeded());
    QCOMPARE(result.GetErrorCode(), 0U);
    QVERIFY(!result.GetErrorDescription().c_str());
    QCOMPARE(result.image().width, 2);
    QCOMPARE(result.image().height, 1);
    QCOMPARE(result.image().pixelFormat, 0x01080001U);
    QCOMPARE(result.image().data, (std::vector<std::uint8_t>{7, 9}));
}

void GrabResultTest::testFailure_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QByteArray>("description");

    QTest::newRow("with a description") << 0xe1000014U << QByteArray("Buffer is incomplete");
    QTest::newRow("with an empty description") << 1U << QByteArray("");
    QTest::newRow("without a description") << 2U << QByteArray();
    QTest::newRow("with code 0 it has failed all the same") << 0U << QByteArray("?");
}

void GrabResultTest::testFailure()
{
    QFETCH(quint32, code);
    QFETCH(QByteArray, description);
    const char *bytes = description.isNull() ? nullptr : description.constData();

    const CGrabResultData result(code, bytes);

    QVERIFY(!result.GrabSucceeded());
    QCOMPARE(result.GetErrorCode(), code);
    QCOMPARE(result.GetErrorDescription().c_str() == nullptr, description.isNull());
    QCOMPARE(QByteArray(result.GetErrorDescription().c_str()), description);
    QCOMPARE(result.image().width, 0);
    QVERIFY(result.image().data.empty());
}

void GrabResultTest::testCopiesShareThePixels()
{
    CImage image;
    image.data.resize(1000);
    const Nerix::CGrabResultPtr result = std::make_shared<CGrabResultData>(std::move(image));
    const QVariant variant = QVariant::fromValue(result);

    QCOMPARE(variant.value<Nerix::CGrabResultPtr>()->image().data.data(),
             result->image().data.data());
    QVERIFY(!Nerix::CGrabResultPtr());
}

QTEST_GUILESS_MAIN(GrabResultTest)
#include "GrabResultTest.moc"
