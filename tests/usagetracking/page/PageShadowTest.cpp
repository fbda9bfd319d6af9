// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The shadow of the tiles as it is drawn with OpenGL, on a display that nobody sees.

#include "ConsentPage.h"
#include "TestMain.h"

#include <QColor>
#include <QImage>

class PageShadowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shadowIsDrawnToTheRightOfAndBelowTheTiles()
    {
        storeNoAnswer();
        ConsentPage page;
        page.hoverNothing();
        const QImage picture = page.window.grabWindow();
        QVERIFY(!picture.isNull());
        for (const char *name : {"yesCheckbox", "noCheckbox"}) {
            const QQuickItem *tile = page.item(name);
            const QRect edge = tile->mapRectToScene({0, 0, tile->width(), tile->height()}).toRect();
            const QPoint middle = edge.center();
            QVERIFY(picture.pixelColor(edge.right() + 1, middle.y()).value() < 235);
            QVERIFY(picture.pixelColor(middle.x(), edge.bottom() + 1).value() < 235);
            // Grey, and gone a few pixels further out.
            const QColor shadow = picture.pixelColor(edge.right() + 1, middle.y());
            QVERIFY(shadow.red() == shadow.green() && shadow.green() == shadow.blue());
            QCOMPARE(picture.pixelColor(edge.right() + 12, middle.y()), QColor(255, 255, 255));
        }
    }
};

NERIX_TEST_MAIN(PageShadowTest)
#include "PageShadowTest.moc"
