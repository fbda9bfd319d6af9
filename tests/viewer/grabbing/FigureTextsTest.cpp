// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/FigureTexts.h"

#include <QTest>

using namespace Grabbing;

class FigureTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testTexts_data();
    void testTexts();
    void testGrabThatIsOverHasNoRate();
};

void FigureTextsTest::testTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("images");
    QTest::addColumn<int>("failures");
    QTest::addColumn<double>("fps");
    QTest::addColumn<quint64>("bps");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("nothing yet has no rate")
        << "en_US" << 0 << 0 << 0.0 << quint64(0) << QStringList{"Images: 0", "Failed: 0", "", ""};
    QTest::newRow("one image has no rate") << "en_US" << 1 << 3 << 7.8 << quint64(2045000)
                                           << QStringList{"Images: 1", "Failed: 3", "", ""};
    QTest::newRow("two images have one")
        << "en_US" << 2 << 0 << 0.5 << quint64(0)
        << QStringList{"Images: 2", "Failed: 0", "0.5 images/s", "0 bytes/s"};
    QTest::newRow("full HD at 60 images a second, grouped as in the USA")
        << "en_US" << 1234567 << 12 << 59.94 << quint64(124292000)
        << QStringList{"Images: 1,234,567", "Failed: 12", "59.9 images/s", "124.3 MB/s"};
    QTest::newRow("as in Germany")
        << "de_DE" << 1234567 << 12 << 59.94 << quint64(124292000)
        << QStringList{"Images: 1.234.567", "Failed: 12", "59,9 images/s", "124,3 MB/s"};
    QTest::newRow("a thousand bytes are a kilobyte")
        << "en_US" << 2 << 0 << 1.0 << quint64(1000)
        << QStringList{"Images: 2", "Failed: 0", "1.0 images/s", "1.0 kB/s"};
    QTest::newRow("more than there can be")
        << "en_US" << 2 << 0 << 1.0 << std::numeric_limits<quint64>::max()
        << QStringList{"Images: 2", "Failed: 0", "1.0 images/s", "9.2 EB/s"};
}

void FigureTextsTest::testTexts()
{
    QFETCH(QString, language);
    QFETCH(int, images);
    QFETCH(int, failures);
    QFETCH(double, fps);
    QFETCH(quint64, bps);
    const FigureTexts texts = figureTexts({images, failures, fps, bps, true}, QLocale(language));
    QTEST((QStringList{texts.images, texts.failures, texts.imageRate, texts.dataRate}), "expected");
}

void FigureTextsTest::testGrabThatIsOverHasNoRate()
{
    const FigureTexts texts = figureTexts({120, 3, 59.94, 124292000, false}, QLocale("en_US"));
    QCOMPARE(texts.images, QString("Images: 120"));
    QCOMPARE(texts.failures, QString("Failed: 3"));
    QCOMPARE(texts.imageRate, QString());
    QCOMPARE(texts.dataRate, QString());
}

QTEST_GUILESS_MAIN(FigureTextsTest)
#include "FigureTextsTest.moc"
