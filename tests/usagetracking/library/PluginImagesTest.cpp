// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The thumbs of the consent page as they are in the built plug-in library: size, colour, direction.

#include <QImage>
#include <QPluginLoader>
#include <QtTest>

namespace {

QString pathOf(const QString &name)
{
    return QStringLiteral(":/usagetracking/qml/images/thumbs-%1.png").arg(name);
}

QImage imageOf(const QString &name)
{
    return QImage(pathOf(name)).convertToFormat(QImage::Format_ARGB32);
}

int opaquePixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += qAlpha(image.pixel(x, y)) == 255 ? 1 : 0;
        }
    }
    return count;
}

/// The colours of all pixels that are not fully transparent, whatever their transparency.
QStringList coloursOf(const QImage &image)
{
    QSet<QString> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            if (colour.alpha() > 0) {
                colours.insert(colour.name());
            }
        }
    }
    return colours.values();
}

} // namespace

class PluginImagesTest : public QObject
{
    Q_OBJECT

private:
    QPluginLoader m_loader{QStringLiteral(USAGETRACKING_LIBRARY)};

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    }

    void imagesAre80By80WithTransparency_data()
    {
        nameRows();
    }

    void imagesAre80By80WithTransparency()
    {
        QFETCH(QString, name);
        QFile image(pathOf(name));
        QVERIFY(image.open(QIODevice::ReadOnly));
        // Signature, length and name of the first chunk, width, height, bits, red-green-blue-alpha.
        QCOMPARE(image.read(26).toHex(), QByteArray("89504e470d0a1a0a"
                                                    "0000000d"
                                                    "49484452"
                                                    "00000050"
                                                    "00000050"
                                                    "08"
                                                    "06"));
        QCOMPARE(imageOf(name).size(), QSize(80, 80));
    }

    void cornersAreTransparent_data()
    {
        nameRows();
    }

    void cornersAreTransparent()
    {
        QFETCH(QString, name);
        const QImage image = imageOf(name);
        for (const QPoint &corner : {QPoint(0, 0), QPoint(79, 0), QPoint(0, 79), QPoint(79, 79)}) {
            QVERIFY(image.valid(corner));
            QCOMPARE(qAlpha(image.pixel(corner)), 0);
        }
    }

    void thumbHasOneColour_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("colour");
        QTest::newRow("yes, not selected: grey") << "up-grey"
                                                 << "#9b9b9b";
        QTest::newRow("yes, selected: green") << "up-green"
                                              << "#3a9d23";
        QTest::newRow("no, not selected: grey") << "down-grey"
                                                << "#9b9b9b";
        QTest::newRow("no, selected: red") << "down-red"
                                           << "#d0021b";
    }

    void thumbHasOneColour()
    {
        QFETCH(QString, name);
        QFETCH(QString, colour);
        const QImage image = imageOf(name);
        QVERIFY(opaquePixels(image) > 1000);
        QCOMPARE(coloursOf(image), QStringList(colour));
    }

    void thumbPointsWhereTheAnswerSays_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("up");
        QTest::newRow("yes, not selected: up") << "up-grey" << true;
        QTest::newRow("yes, selected: up") << "up-green" << true;
        QTest::newRow("no, not selected: down") << "down-grey" << false;
        QTest::newRow("no, selected: down") << "down-red" << false;
    }

    // The fist covers far more than the thumb that stands out of it.
    void thumbPointsWhereTheAnswerSays()
    {
        QFETCH(QString, name);
        QFETCH(bool, up);
        const QImage image = imageOf(name);
        const int top = opaquePixels(image.copy(0, 0, 80, 40));
        const int bottom = opaquePixels(image.copy(0, 40, 80, 40));
        const int thumb = up ? top : bottom;
        const int fist = up ? bottom : top;
        QVERIFY2(thumb > 0 && 3 * thumb < 2 * fist,
                 qPrintable(QStringLiteral("%1 above, %2 below").arg(top).arg(bottom)));
    }

    void yesAndNoDifferInShape_data()
    {
        QTest::addColumn<QString>("yes");
        QTest::addColumn<QString>("no");
        QTest::newRow("not selected") << "up-grey"
                                      << "down-grey";
        QTest::newRow("selected") << "up-green"
                                  << "down-red";
    }

    // Not in colour alone, which not everybody sees.
    void yesAndNoDifferInShape()
    {
        QFETCH(QString, yes);
        QFETCH(QString, no);
        QVERIFY(imageOf(yes).convertToFormat(QImage::Format_Alpha8)
                != imageOf(no).convertToFormat(QImage::Format_Alpha8));
    }

private:
    static void nameRows()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"up-grey", "up-green", "down-grey", "down-red"}) {
            QTest::newRow(name) << QString::fromLatin1(name);
        }
    }
};

QTEST_GUILESS_MAIN(PluginImagesTest)
#include "PluginImagesTest.moc"
