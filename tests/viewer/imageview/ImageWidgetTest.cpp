// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "MouseMove.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/ImageConversion.h"
#include "TestImage.h"

#include <memory>

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

using ImageView::CImageView;
using ImageView::ShownImage;

// The drawn image and what mouse and keys do with it. Places are in device-independent pixels, so
// that it also passes on a screen with others.
class ImageWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testFitsAtFirst();
    void testDrawsThePixelsAsCrispSquares();
    void testActualSizeIsOnePixelOfTheScreen();
    void testWheelZoomsToTheMouse();
    void testWheelHoldsThePixelUnderTheMouse();
    void testWheelThatTurnsInPartsOfAStep();
    void testDragMovesTheImage();
    void testDoubleClickFits();
    void testKeysZoom();
    void testArrowKeysMoveTheImage();
    void testPointerIsThePixelUnderTheMouse();
    void testPointerFollowsEachChangeUnderAMouseThatStands_data();
    void testPointerFollowsEachChangeUnderAMouseThatStands();
    void testPointerIsTheNewImagesPixelUnderTheMouse();
    void testPointerIsThereWhenTheViewComesUnderTheMouse();
    void testPointerOfTheKeysStaysAtItsPixel();
    void testPointerMovesByKey();
    void testPointerLeavesWithTheMouse();
    void testPointerLeavesASmallerImage();
    void testNewImageUnderThePointerIsTold();
    void testClickAndTabActivate();
    void testImageOfAnotherSizeIsFitted();
    void testNoImageIsDrawnAsGround();

private:
    static ShownImage shown(int width, int height);
    QImage drawn();
    QPoint placeOf(const QPointF &pixel) const;
    void turnWheel(const QPoint &place, int angle);

    std::unique_ptr<CImageView> m_view;
};

// A ramp: the value of each pixel is x + 16 y.
ShownImage ImageWidgetTest::shown(int width, int height)
{
    std::vector<std::uint8_t> data;
    for (int i = 0; i < width * height; ++i) {
        data.push_back(std::uint8_t(i % width + i / width * 16));
    }
    ShownImage image;
    image.result =
        std::make_shared<Nerix::CGrabResultData>(testImage(width, height, 0x01080001, data));
    image.screen = ImageView::screenImage(image.result->image());
    return image;
}

void ImageWidgetTest::init()
{
    m_view = std::make_unique<CImageView>();
    m_view->resize(320, 240);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view->setImage(shown(16, 12));
}

QImage ImageWidgetTest::drawn()
{
    QImage image = m_view->grab().toImage().convertToFormat(QImage::Format_RGB32);
    image.setDevicePixelRatio(1);
    return image;
}

// Where a place of the image is in the view.
QPoint ImageWidgetTest::placeOf(const QPointF &pixel) const
{
    const QRectF rect = m_view->imageRect();
    const QSize size = m_view->image().screen.size();
    return (rect.topLeft()
            + QPointF(pixel.x() * rect.width() / size.width(),
                      pixel.y() * rect.height() / size.height()))
        .toPoint();
}

void ImageWidgetTest::turnWheel(const QPoint &place, int angle)
{
    QWheelEvent event(place, m_view->mapToGlobal(place), {}, {0, angle}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_view.get(), &event);
}

void ImageWidgetTest::testFitsAtFirst()
{
    QVERIFY(m_view->transform().isFit());
    QCOMPARE(m_view->imageRect(), QRectF(0, 0, 320, 240));
}

void ImageWidgetTest::testDrawsThePixelsAsCrispSquares()
{
    const QImage image = drawn();
    const int size = image.width() / 16; // of a pixel
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 16; ++x) {
            const int grey = x + 16 * y;
            for (const QPoint &corner : {QPoint(0, 0), QPoint(size - 1, size - 1)}) {
                QCOMPARE(image.pixel(QPoint(x * size, y * size) + corner), qRgb(grey, grey, grey));
            }
        }
    }
}

void ImageWidgetTest::testActualSizeIsOnePixelOfTheScreen()
{
    m_view->showActualSize();
    const QImage image = drawn();
    const QPoint first((image.width() - 16) / 2, (image.height() - 12) / 2);
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 16; ++x) {
            const int grey = x + 16 * y;
            QCOMPARE(image.pixel(first + QPoint(x, y)), qRgb(grey, grey, grey));
        }
    }
    QCOMPARE(image.pixel(first - QPoint(1, 1)), qRgb(0x3a, 0x3a, 0x3a));
}

void ImageWidgetTest::testWheelZoomsToTheMouse()
{
    QSignalSpy changed(m_view.get(), &CImageView::transformChanged);
    const double before = m_view->transform().scale();
    const QPoint place(80, 60);
    turnWheel(place, 120);
    QVERIFY(m_view->transform().scale() > before);
    QVERIFY(!m_view->transform().isFit());
    QCOMPARE(placeOf({4, 3}), place);
    QVERIFY(changed.count() > 0);
    turnWheel(place, -240);
    QVERIFY(m_view->transform().scale() < before);
}

// The image has ground above and below it.
void ImageWidgetTest::testWheelHoldsThePixelUnderTheMouse()
{
    m_view->setImage(shown(256, 16));
    const QPoint place(70, 112); // 2 below its upper edge
    moveMouse(m_view.get(), place);
    QCOMPARE(m_view->pointer(), QPoint(56, 1));
    while (m_view->transform().canStepIn()) {
        turnWheel(place, 120);
        QCOMPARE(m_view->pointer(), QPoint(56, 1));
    }
}

void ImageWidgetTest::testWheelThatTurnsInPartsOfAStep()
{
    const double before = m_view->transform().scale();
    turnWheel({80, 60}, 40);
    turnWheel({80, 60}, 40);
    QCOMPARE(m_view->transform().scale(), before);
    turnWheel({80, 60}, 40);
    const double after = m_view->transform().scale();
    QVERIFY(after > before);
    turnWheel({80, 60}, 240);
    QVERIFY(m_view->transform().scale() > after);
}

void ImageWidgetTest::testDragMovesTheImage()
{
    turnWheel({160, 120}, 240);
    const QRectF before = m_view->imageRect();
    QTest::mousePress(m_view.get(), Qt::LeftButton, {}, {100, 100});
    moveMouse(m_view.get(), {110, 95}, Qt::LeftButton);
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, {110, 95});
    QCOMPARE(m_view->imageRect(), before.translated(10, -5));
    moveMouse(m_view.get(), {50, 50});
    QCOMPARE(m_view->imageRect(), before.translated(10, -5));
}

void ImageWidgetTest::testDoubleClickFits()
{
    m_view->showActualSize();
    QVERIFY(!m_view->transform().isFit());
    QTest::mouseDClick(m_view.get(), Qt::LeftButton);
    QVERIFY(m_view->transform().isFit());
}

void ImageWidgetTest::testKeysZoom()
{
    const double before = m_view->transform().scale();
    QTest::keyClick(m_view.get(), Qt::Key_Plus);
    QVERIFY(m_view->transform().scale() > before);
    QTest::keyClick(m_view.get(), Qt::Key_Minus);
    QTest::keyClick(m_view.get(), Qt::Key_Minus);
    QVERIFY(m_view->transform().scale() < before);
    QTest::keyClick(m_view.get(), Qt::Key_Home);
    QVERIFY(m_view->transform().isFit());
}

void ImageWidgetTest::testArrowKeysMoveTheImage()
{
    turnWheel({160, 120}, 240);
    const QRectF before = m_view->imageRect();
    QTest::keyClick(m_view.get(), Qt::Key_Right);
    QCOMPARE(m_view->imageRect(), before.translated(-32, 0));
    QTest::keyClick(m_view.get(), Qt::Key_Up);
    QCOMPARE(m_view->imageRect(), before.translated(-32, 24));
    QTest::keyClick(m_view.get(), Qt::Key_Left);
    QTest::keyClick(m_view.get(), Qt::Key_Down);
    QCOMPARE(m_view->imageRect(), before);
}

void ImageWidgetTest::testPointerIsThePixelUnderTheMouse()
{
    QSignalSpy changed(m_view.get(), &CImageView::pointerChanged);
    moveMouse(m_view.get(), {0, 0});
    QCOMPARE(m_view->pointer(), QPoint(0, 0));
    moveMouse(m_view.get(), {319, 239});
    QCOMPARE(m_view->pointer(), QPoint(15, 11));
    moveMouse(m_view.get(), {40, 59});
    QCOMPARE(m_view->pointer(), QPoint(2, 2));
    QCOMPARE(changed.count(), 3);
    m_view->showActualSize();
    moveMouse(m_view.get(), {5, 5});
    QCOMPARE(m_view->pointer(), QPoint(-1, -1));
}

void ImageWidgetTest::testPointerFollowsEachChangeUnderAMouseThatStands_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QPoint>("pixel");

    QTest::newRow("magnified by key") << int(Qt::Key_Plus) << QPoint(4, 3);
    QTest::newRow("moved by key") << int(Qt::Key_Right) << QPoint(4, 3);
    QTest::newRow("fitted") << int(Qt::Key_Home) << QPoint(2, 2);
}

void ImageWidgetTest::testPointerFollowsEachChangeUnderAMouseThatStands()
{
    QFETCH(int, key);
    turnWheel({160, 120}, 120);
    moveMouse(m_view.get(), {50, 50});
    QCOMPARE(m_view->pointer(), QPoint(3, 3));
    QSignalSpy changed(m_view.get(), &CImageView::pointerChanged);
    QTest::keyClick(m_view.get(), Qt::Key(key));
    QTEST(m_view->pointer(), "pixel");
    QCOMPARE(changed.count(), 1);
}

void ImageWidgetTest::testPointerIsTheNewImagesPixelUnderTheMouse()
{
    m_view->setImage({});
    moveMouse(m_view.get(), {279, 239});
    QCOMPARE(m_view->pointer(), QPoint(-1, -1));
    m_view->setImage(shown(16, 12));
    QCOMPARE(m_view->pointer(), QPoint(13, 11));
    m_view->setImage(shown(12, 12));
    QCOMPARE(m_view->pointer(), QPoint(11, 11));
}

void ImageWidgetTest::testPointerIsThereWhenTheViewComesUnderTheMouse()
{
    QEnterEvent enter({10, 10}, {10, 10}, {10, 10});
    QCoreApplication::sendEvent(m_view.get(), &enter);
    QCOMPARE(m_view->pointer(), QPoint(0, 0));
}

void ImageWidgetTest::testPointerOfTheKeysStaysAtItsPixel()
{
    moveMouse(m_view.get(), {10, 10});
    QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(m_view->pointer(), QPoint(1, 0));
    m_view->zoomIn();
    QCOMPARE(m_view->pointer(), QPoint(1, 0));
    m_view->setImage(shown(8, 6));
    QCOMPARE(m_view->pointer(), QPoint(1, 0));
}

void ImageWidgetTest::testPointerMovesByKey()
{
    QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(m_view->pointer(), QPoint(8, 6)); // begins in the middle
    QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
    QTest::keyClick(m_view.get(), Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(m_view->pointer(), QPoint(9, 7));
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(m_view.get(), Qt::Key_Left, Qt::ControlModifier);
    }
    QCOMPARE(m_view->pointer(), QPoint(0, 7));

    // It is seen.
    QCOMPARE(qRed(drawn().pixel(placeOf({0, 7}) * m_view->devicePixelRatioF())), 255);
}

void ImageWidgetTest::testPointerLeavesWithTheMouse()
{
    moveMouse(m_view.get(), {10, 10});
    QCOMPARE(m_view->pointer(), QPoint(0, 0));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(m_view.get(), &leave);
    QCOMPARE(m_view->pointer(), QPoint(-1, -1));
    QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
    QCoreApplication::sendEvent(m_view.get(), &leave);
    QCOMPARE(m_view->pointer(), QPoint(8, 6)); // the mouse was not what moved it here
}

void ImageWidgetTest::testPointerLeavesASmallerImage()
{
    moveMouse(m_view.get(), {319, 239});
    m_view->setImage(shown(8, 8));
    QCOMPARE(m_view->pointer(), QPoint(-1, -1));
}

void ImageWidgetTest::testNewImageUnderThePointerIsTold()
{
    moveMouse(m_view.get(), {10, 10});
    QSignalSpy changed(m_view.get(), &CImageView::pointerChanged);
    m_view->setImage(shown(16, 12));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_view->pointer(), QPoint(0, 0));
}

void ImageWidgetTest::testClickAndTabActivate()
{
    QSignalSpy activated(m_view.get(), &CImageView::activated);
    QTest::mouseClick(m_view.get(), Qt::LeftButton);
    QCOMPARE(activated.count(), 1);
    QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(m_view.get(), &byTab);
    QCOMPARE(activated.count(), 2);
    QFocusEvent byWindow(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(m_view.get(), &byWindow);
    QCOMPARE(activated.count(), 2);
    QVERIFY(m_view->focusPolicy() == Qt::StrongFocus);
}

void ImageWidgetTest::testImageOfAnotherSizeIsFitted()
{
    QSignalSpy changed(m_view.get(), &CImageView::transformChanged);
    m_view->setImage(shown(12, 12));
    QCOMPARE(m_view->imageRect(), QRectF(40, 0, 240, 240));
    QCOMPARE(changed.count(), 0); // still 20 pixels for one
    m_view->setImage(shown(6, 6));
    QCOMPARE(changed.count(), 1);
}

void ImageWidgetTest::testNoImageIsDrawnAsGround()
{
    m_view->setImage({});
    const QImage image = drawn();
    QCOMPARE(image.pixel(image.width() / 2, image.height() / 2), qRgb(0x3a, 0x3a, 0x3a));
    moveMouse(m_view.get(), {30, 30});
    QTest::keyClick(m_view.get(), Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(m_view->pointer(), QPoint(-1, -1));
}

QTEST_MAIN(ImageWidgetTest)
#include "ImageWidgetTest.moc"
