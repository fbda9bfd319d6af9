// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The page as it is drawn against pictures that a person has looked at. After an intended change:
// tools/with-display.sh build/dev/tests/bin/consent-page-pictures --kept
// tests/usagetracking/page/pictures, and look at each.

#include "PagePictures.h"

#include "PictureDifference.h"
#include "TestMain.h"

#include <QDir>

namespace {

const QString folder = QStringLiteral(NERIX_PAGE_PICTURES);

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
        const double found = pictureDifference(picture, keptPicture(view.name));
        if (found > pictureTolerance) {
            const QString file = QDir::temp().filePath(view.name + QStringLiteral(".png"));
            picture.save(file);
            QFAIL(qPrintable(
                QStringLiteral("%1 % of the picture differ, see %2").arg(found * 100).arg(file)));
        }
    }

    // Each picture tells its state and its language from the others, so the pictureTolerance is not
    // too wide; only two states look the same by design apart from their buttons.
    void noPictureCouldPassForAnother()
    {
        const QList<PageView> views = pageViews();
        for (int i = 0; i < views.size(); ++i) {
            for (int j = 0; j < i; ++j) {
                const double found =
                    pictureDifference(keptPicture(views.at(i).name), keptPicture(views.at(j).name));
                QVERIFY2(found > pictureTolerance,
                         qPrintable(views.at(i).name + " / " + views.at(j).name + ": "
                                    + QString::number(found)));
            }
        }
    }
};

NERIX_TEST_MAIN(PagePicturesTest)
#include "PagePicturesTest.moc"
