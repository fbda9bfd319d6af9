// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The page as it is drawn against pictures that a person has looked at. After an intended change:
// tools/with-display.sh build/dev/tests/bin/consent-page-pictures --kept
// tests/usagetracking/page/pictures, and look at each.

#include "PagePictures.h"

#include "TestMain.h"

#include <QDir>

namespace {

const QString folder = QStringLiteral(NERIX_PAGE_PICTURES);

// A value of a colour differs visibly from here on.
constexpr int visible = 40;

// The part of the pixels that may: what another version of a font changes at the edges of letters.
constexpr double tolerance = 0.004;

bool differsVisibly(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) > visible || qAbs(qGreen(one) - qGreen(other)) > visible
           || qAbs(qBlue(one) - qBlue(other)) > visible;
}

/// The part of the pixels that differ visibly; all, if the sizes do.
double difference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size()) {
        return 1;
    }
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += differsVisibly(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
        }
    }
    return double(count) / (one.width() * one.height());
}

QImage keptPicture(const QString &name)
{
    return QImage(QStringLiteral("%1/%2.png").arg(folder, name));
}

} // namespace

class PagePicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageLooksAsBefore_data()
    {
        QTest::addColumn<int>("index");
        const QList<PageView> views = pageViews();
        for (int i = 0; i < views.size(); ++i) {
            QTest::newRow(qPrintable(views.at(i).name)) << i;
        }
    }

    void pageLooksAsBefore()
    {
        QFETCH(int, index);
        const PageView view = pageViews().at(index);
        const QImage picture = keptSize(pictureOf(view));
        const double found = difference(picture, keptPicture(view.name));
        if (found > tolerance) {
            const QString file = QDir::temp().filePath(view.name + QStringLiteral(".png"));
            picture.save(file);
            QFAIL(qPrintable(
                QStringLiteral("%1 % of the picture differ, see %2").arg(found * 100).arg(file)));
        }
    }

    // Each picture tells its state and its language from the others, so the tolerance is not too
    // wide; only two states look the same by design apart from their buttons.
    void noPictureCouldPassForAnother()
    {
        const QList<PageView> views = pageViews();
        for (int i = 0; i < views.size(); ++i) {
            for (int j = 0; j < i; ++j) {
                const double found =
                    difference(keptPicture(views.at(i).name), keptPicture(views.at(j).name));
                QVERIFY2(found > tolerance, qPrintable(views.at(i).name + " / " + views.at(j).name
                                                       + ": " + QString::number(found)));
            }
        }
    }
};

NERIX_TEST_MAIN(PagePicturesTest)
#include "PagePicturesTest.moc"
