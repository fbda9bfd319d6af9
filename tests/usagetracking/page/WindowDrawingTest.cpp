// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The window of the welcome screen as it is drawn with OpenGL, on a display that nobody sees.

#include "ConsentWindow.h"
#include "TestMain.h"

#include <QImage>
#include <QQuickWidget>
#include <QQuickWindow>
#include <QSGRendererInterface>

namespace {

// A picture of the page in its window, addressed by the coordinates of the page.
class CPicture
{
public:
    explicit CPicture(const ConsentWindow &page)
        : m_picture(page.window->grab().toImage())
        , m_origin(page.page()->mapTo(page.window.get(), {0, 0}))
    {}

    QColor at(const QPointF &point) const
    {
        const QPointF pixel = (point + m_origin) * m_picture.devicePixelRatio();
        return m_picture.pixelColor(int(pixel.x()), int(pixel.y()));
    }

    QSizeF size() const
    {
        return QSizeF(m_picture.size()) / m_picture.devicePixelRatio();
    }

private:
    QImage m_picture;
    QPointF m_origin;
};

QRectF placeOf(const QQuickItem *item)
{
    return item->mapRectToScene({0, 0, item->width(), item->height()});
}

const QColor white(255, 255, 255);
const QColor frame(0x00, 0x7a, 0xd9);

} // namespace

class WindowDrawingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        storeKeys(QVariant(), QVariant());
    }

    void pageIsDrawnWithOpenGl()
    {
        const ConsentWindow page;
        QCOMPARE(page.page()->quickWindow()->rendererInterface()->graphicsApi(),
                 QSGRendererInterface::OpenGL);
    }

    void wholePageIsInTheWindow()
    {
        const ConsentWindow page;
        const CPicture picture(page);
        QCOMPARE(page.page()->size(), QSize(1000, 685));
        QCOMPARE(picture.size(), QSizeF(page.window->size()));
        QCOMPARE(picture.at({740, 680}), white);
        QCOMPARE(picture.at({760, 680}), QColor(240, 240, 240));
    }

    void tilesHaveTheirShadow()
    {
        const ConsentWindow page;
        const CPicture picture(page);
        for (const char *name : {"yesCheckbox", "noCheckbox"}) {
            const QRectF tile = placeOf(page.item(name));
            const QColor shadow = picture.at({tile.right() + 0.5, tile.center().y()});
            QVERIFY2(shadow.value() < 235, qPrintable(shadow.name()));
            QCOMPARE(picture.at({tile.right() + 12, tile.center().y()}), white);
        }
    }

    void frameIsWhereTheKeyboardIs_data()
    {
        QTest::addColumn<QString>("stop");
        QTest::addColumn<QByteArray>("frameOf");
        QTest::newRow("tile") << "noCheckbox" << QByteArray("focusFrame");
        QTest::newRow("link") << "DataPrivacy.txt" << QByteArray("linkFrame");
    }

    void frameIsWhereTheKeyboardIs()
    {
        QFETCH(QString, stop);
        QFETCH(QByteArray, frameOf);
        ConsentWindow page;
        QVERIFY(page.walkTo(stop));
        QTRY_VERIFY(!page.page()->quickWindow()->activeFocusItem()->childItems().isEmpty());
        const QQuickItem *current = page.page()->quickWindow()->activeFocusItem();
        const QQuickItem *drawn = nullptr;
        for (const QQuickItem *child : current->childItems()) {
            drawn = child->objectName() == QLatin1String(frameOf) ? child : drawn;
        }
        QVERIFY(drawn);
        const QRectF place = placeOf(drawn);
        QCOMPARE(CPicture(page).at({place.left() + 0.5, place.center().y()}), frame);
    }
};

NERIX_TEST_MAIN(WindowDrawingTest)
#include "WindowDrawingTest.moc"
