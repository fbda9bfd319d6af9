// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CViewTransform.h"

#include <cmath>

#include <QTest>

using ImageView::CViewTransform;

// Where the image lies in the view. All in pixels of the screen.
class ViewTransformTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testFit_data();
    void testFit();
    void testFitFollowsTheSizes();
    void testActualSizeIsOnePixelOfTheScreenForOneOfTheImage();
    void testWhatIsUnderTheAnchorStaysThere();
    void testPixelUnderTheAnchorStaysThere_data();
    void testPixelUnderTheAnchorStaysThere();
    void testImageComesBackToTheMiddleOnTheWayOut();
    void testAnchorBesideTheImageHoldsNothing();
    void testBandBesideTheImageNeverGrowsByPanning();
    void testStepsIn();
    void testStepsOut();
    void testStepsEndAtTheLargestAndTheSmallest();
    void testSmallImageIsCentred();
    void testLargeImageCoversTheView();
    void testPanMovesTheImage();
    void testOtherImageSizeKeepsTheScale();
    void testOriginIsAtAWholePixel();
    void testNoImageAndNoView();

private:
    static CViewTransform transform(const QSizeF &view, const QSize &image);
};

CViewTransform ViewTransformTest::transform(const QSizeF &view, const QSize &image)
{
    CViewTransform transform;
    transform.setViewSize(view);
    transform.setImageSize(image);
    return transform;
}

void ViewTransformTest::testFit_data()
{
    QTest::addColumn<QSize>("view");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<double>("scale");
    QTest::addColumn<QRectF>("rect");

    QTest::newRow("a wide image touches left and right")
        << QSize(800, 600) << QSize(1600, 900) << 0.5 << QRectF(0, 75, 800, 450);
    QTest::newRow("a high image touches top and bottom")
        << QSize(800, 600) << QSize(600, 1200) << 0.5 << QRectF(250, 0, 300, 600);
    QTest::newRow("a small image is magnified")
        << QSize(800, 600) << QSize(100, 100) << 6.0 << QRectF(100, 0, 600, 600);
    QTest::newRow("a tiny one 64 times at most")
        << QSize(800, 600) << QSize(2, 2) << 64.0 << QRectF(336, 236, 128, 128);
}

void ViewTransformTest::testFit()
{
    QFETCH(QSize, view);
    QFETCH(QSize, image);
    const CViewTransform given = transform(view, image);
    QVERIFY(given.isFit());
    QTEST(given.scale(), "scale");
    QTEST(given.imageRect(), "rect");
}

void ViewTransformTest::testFitFollowsTheSizes()
{
    CViewTransform given = transform({800, 600}, {1600, 1200});
    given.setViewSize({400, 600});
    QCOMPARE(given.imageRect(), QRectF(0, 150, 400, 300));
    given.setImageSize({400, 600});
    QCOMPARE(given.imageRect(), QRectF(0, 0, 400, 600));
    given.setScale(2, {0, 0});
    QVERIFY(!given.isFit());
    given.setViewSize({100, 100});
    QCOMPARE(given.scale(), 2.0);
    given.fit();
    QVERIFY(given.isFit());
    QCOMPARE(given.imageRect(), QRectF(16, 0, 100.0 / 1.5, 100));
}

void ViewTransformTest::testActualSizeIsOnePixelOfTheScreenForOneOfTheImage()
{
    CViewTransform given = transform({800, 600}, {1600, 1200});
    given.setScale(1, {400, 300});
    QCOMPARE(given.imageRect(), QRectF(-400, -300, 1600, 1200));
    QCOMPARE(given.toImage({0, 0}), QPointF(400, 300));
    QCOMPARE(given.toImage({10, 20}), QPointF(410, 320));
}

void ViewTransformTest::testWhatIsUnderTheAnchorStaysThere()
{
    CViewTransform given = transform({800, 600}, {1600, 1200});
    const QPointF anchor(200, 150);
    QCOMPARE(given.toImage(anchor), QPointF(400, 300));
    given.setScale(2, anchor);
    QCOMPARE(given.toImage(anchor), QPointF(400, 300));
    given.stepIn(anchor);
    QCOMPARE(given.scale(), 3.0);
    QCOMPARE(given.toImage(anchor), QPointF(400, 300));
    given.stepOut(anchor);
    given.stepOut(anchor);
    QCOMPARE(given.scale(), 1.5);
    QCOMPARE(given.toImage(anchor), QPointF(400, 300));
}

void ViewTransformTest::testPixelUnderTheAnchorStaysThere_data()
{
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QPoint>("anchor");
    QTest::addColumn<QPoint>("pixel");

    QTest::newRow("of an image with ground above and below")
        << QSize(1024, 256) << QPoint(105, 225) << QPoint(191, 45);
    QTest::newRow("of one with ground on both sides")
        << QSize(256, 1024) << QPoint(221, 100) << QPoint(15, 189);
    QTest::newRow("its first one") << QSize(1024, 256) << QPoint(0, 200) << QPoint(0, 0);
    QTest::newRow("its last one") << QSize(1024, 256) << QPoint(561, 340) << QPoint(1022, 255);
    QTest::newRow("of a tiny image") << QSize(20, 10) << QPoint(300, 300) << QPoint(10, 6);
    QTest::newRow("of one that is larger than the view")
        << QSize(2048, 2048) << QPoint(77, 501) << QPoint(253, 1896);
}

void ViewTransformTest::testPixelUnderTheAnchorStaysThere()
{
    QFETCH(QPoint, anchor);
    QFETCH(QSize, image);
    CViewTransform given = transform({562, 541}, image);
    const auto pixel = [&] {
        const QPointF place = given.toImage(anchor);
        return QPoint(int(std::floor(place.x())), int(std::floor(place.y())));
    };
    QTEST(pixel(), "pixel");
    while (given.canStepIn()) {
        given.stepIn(anchor);
        QTEST(pixel(), "pixel");
    }
    QCOMPARE(given.scale(), 64.0);
}

void ViewTransformTest::testImageComesBackToTheMiddleOnTheWayOut()
{
    CViewTransform given = transform({800, 600}, {1600, 600});
    const QPointF anchor(400, 160);
    given.stepIn(anchor);
    given.stepIn(anchor);
    QCOMPARE(given.imageRect(), QRectF(-200, 145, 1200, 450)); // 20 of the image at the anchor
    given.stepOut(anchor);
    given.stepOut(anchor);
    QCOMPARE(given.imageRect(), QRectF(0, 150, 800, 300));

    // No edge comes further into the view than it is when the image is fitted.
    given.setScale(4, anchor);
    given.pan({0, -1000});
    given.pan({0, 1000});
    QCOMPARE(given.imageRect().top(), 0.0);
    given.setScale(1, {400, 590});
    QCOMPARE(given.imageRect(), QRectF(-400, 150, 1600, 600));
}

void ViewTransformTest::testAnchorBesideTheImageHoldsNothing()
{
    CViewTransform given = transform({800, 600}, {1600, 600});
    given.setScale(0.75, {400, 20});
    QCOMPARE(given.imageRect(), QRectF(-200, 75, 1200, 450));
    given.setScale(2, {400, 20});
    QCOMPARE(given.imageRect().top(), 0.0);
}

void ViewTransformTest::testBandBesideTheImageNeverGrowsByPanning()
{
    CViewTransform given = transform({800, 600}, {1600, 600});
    given.setScale(2, {400, 160}); // 20 of the image
    QCOMPARE(given.imageRect(), QRectF(-1200, 120, 3200, 1200));
    given.pan({0, 30});
    QCOMPARE(given.imageRect().top(), 120.0);
    given.pan({0, -50});
    QCOMPARE(given.imageRect().top(), 70.0);
    given.pan({0, 30});
    QCOMPARE(given.imageRect().top(), 70.0);
    given.pan({0, -200});
    QCOMPARE(given.imageRect().top(), -130.0);
    given.pan({0, 200});
    QCOMPARE(given.imageRect().top(), 0.0);
}

void ViewTransformTest::testStepsIn()
{
    CViewTransform given = transform({600, 600}, {1000, 1000});
    QList<double> scales{given.scale()};
    for (int i = 0; i < 6; ++i) {
        given.stepIn({300, 300});
        scales.append(given.scale());
    }
    QCOMPARE(scales, (QList<double>{0.6, 2.0 / 3, 0.75, 1.0, 1.5, 2.0, 3.0}));
}

void ViewTransformTest::testStepsOut()
{
    CViewTransform given = transform({600, 600}, {1000, 1000});
    given.setScale(2, {300, 300});
    QList<double> scales;
    for (int i = 0; i < 6; ++i) {
        given.stepOut({300, 300});
        scales.append(given.scale());
    }
    QCOMPARE(scales, (QList<double>{1.5, 1.0, 0.75, 2.0 / 3, 0.5, 1.0 / 3}));
}

void ViewTransformTest::testStepsEndAtTheLargestAndTheSmallest()
{
    CViewTransform given = transform({600, 600}, {1000, 1000});
    given.setScale(1000, {0, 0});
    QCOMPARE(given.scale(), 64.0);
    QVERIFY(!given.canStepIn());
    QVERIFY(given.canStepOut());
    given.stepIn({0, 0});
    QCOMPARE(given.scale(), 64.0);
    given.setScale(0, {0, 0});
    QCOMPARE(given.scale(), 1.0 / 32);
    QVERIFY(given.canStepIn());
    QVERIFY(!given.canStepOut());
    given.stepOut({0, 0});
    QCOMPARE(given.scale(), 1.0 / 32);
}

void ViewTransformTest::testSmallImageIsCentred()
{
    CViewTransform given = transform({800, 600}, {100, 100});
    given.setScale(1, {0, 0});
    QCOMPARE(given.imageRect(), QRectF(350, 250, 100, 100));
    given.pan({30, 40});
    QCOMPARE(given.imageRect(), QRectF(350, 250, 100, 100));
}

void ViewTransformTest::testLargeImageCoversTheView()
{
    CViewTransform given = transform({800, 600}, {1000, 1000});
    given.setScale(1, {0, 0});
    given.pan({500, 500});
    QCOMPARE(given.imageRect(), QRectF(0, 0, 1000, 1000));
    given.pan({-5000, -5000});
    QCOMPARE(given.imageRect(), QRectF(-200, -400, 1000, 1000));
}

void ViewTransformTest::testPanMovesTheImage()
{
    CViewTransform given = transform({800, 600}, {1000, 1000});
    given.setScale(1, {0, 0});
    given.pan({-30, -40});
    QCOMPARE(given.imageRect(), QRectF(-30, -40, 1000, 1000));
    QCOMPARE(given.toImage({0, 0}), QPointF(30, 40));
}

void ViewTransformTest::testOtherImageSizeKeepsTheScale()
{
    CViewTransform given = transform({100, 100}, {1000, 1000});
    given.setScale(2, {0, 0});
    given.setImageSize({500, 500});
    QCOMPARE(given.scale(), 2.0);
    QVERIFY(!given.isFit());
}

void ViewTransformTest::testOriginIsAtAWholePixel()
{
    CViewTransform given = transform({801, 601}, {100, 100});
    given.setScale(1, {0, 0});
    QCOMPARE(given.imageRect().topLeft(), QPointF(350, 250));
    given.setScale(16, {33.3, 44.4});
    QCOMPARE(given.imageRect().left(), std::round(given.imageRect().left()));
    QCOMPARE(given.imageRect().top(), std::round(given.imageRect().top()));
}

void ViewTransformTest::testNoImageAndNoView()
{
    CViewTransform given;
    QCOMPARE(given.scale(), 1.0);
    QVERIFY(given.imageRect().isEmpty());
    given.setImageSize({100, 100});
    QCOMPARE(given.scale(), 1.0);
    given.setViewSize({});
    given.stepIn({});
    QCOMPARE(given.scale(), 1.5);
}

QTEST_GUILESS_MAIN(ViewTransformTest)
#include "ViewTransformTest.moc"
