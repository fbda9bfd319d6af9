// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "MouseMove.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/imageview/CImageArea.h"
#include "plugins/imageview/CImagePane.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/CLiveImages.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "TestImage.h"

#include <memory>

#include <QLabel>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>

using namespace ImageView;

// The panes of the open cameras, and the words where there is no image.
class ImageAreaTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testWithoutAnOpenCameraSaysWhatToDo();
    void testEachOpenCameraHasAPaneWithItsName();
    void testPaneFollowsTheNewNameOfItsCamera();
    void testPaneHasTheNewNameOfACameraThatWasOpenedByItsOldOne();
    void testPanesOfTheSameNameHaveTheSerialNumbersBesideIt();
    void testPanesStandInAGrid_data();
    void testPanesStandInAGrid();
    void testPanesAreOfOneWidth();
    void testWordsWithoutAnImage();
    void testWordsForAnImageThatCannotBeShown_data();
    void testWordsForAnImageThatCannotBeShown();
    void testImageReplacesTheWords();
    void testFailuresAreShownOverTheImage();
    void testPixelUnderThePointer_data();
    void testPixelUnderThePointer();
    void testSizeFormatAndScale();
    void testPaneOfTheSelectedCameraIsMarked();
    void testClickSelectsTheCamera();
    void testCurrentPane();
    void testHasNamesForScreenReaders();

private:
    CImagePane *open(const char *identity, const char *displayName = nullptr);
    void give(CImagePane *pane, const Nerix::CGrabResultPtr &result);
    static QLabel *label(const QWidget *parent, const char *name);

    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    QSharedPointer<CameraPool::CImageNews> m_news;
    QSharedPointer<CameraSelector::CDeviceSelectionService> m_selection;
    std::unique_ptr<CLiveImages> m_images;
    std::unique_ptr<CImageArea> m_area;
};

void ImageAreaTest::init()
{
    QLocale::setDefault(QLocale("en_US"));
    m_area.reset();
    m_images.reset();
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_news = QSharedPointer<CameraPool::CImageNews>::create();
    m_selection = QSharedPointer<CameraSelector::CDeviceSelectionService>::create();
    m_images = std::make_unique<CLiveImages>(CLiveImages::Services{m_control, m_status, m_news});
    m_area = std::make_unique<CImageArea>(*m_images, m_selection);
    m_area->resize(640, 480);
    m_area->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_area.get()));
}

CImagePane *ImageAreaTest::open(const char *identity, const char *displayName)
{
    Q_EMIT m_status->deviceOpened(m_control->plugIn(identity, "XQZ-2000", displayName));
    return m_area->panes().constLast();
}

void ImageAreaTest::give(CImagePane *pane, const Nerix::CGrabResultPtr &result)
{
    QSignalSpy changed(&pane->camera(), &CLiveCamera::imageChanged);
    Q_EMIT m_news->resultArrived(pane->camera().info(), result);
    QVERIFY(changed.wait());
}

QLabel *ImageAreaTest::label(const QWidget *parent, const char *name)
{
    return parent->findChild<QLabel *>(QLatin1String(name));
}

void ImageAreaTest::testWithoutAnOpenCameraSaysWhatToDo()
{
    QVERIFY(label(m_area.get(), "welcomeText")->isVisible());
    QVERIFY(label(m_area.get(), "welcomeText")->text().contains("Open a camera"));
    const CImagePane *pane = open("A");
    QVERIFY(!label(m_area.get(), "welcomeText")->isVisible());
    Q_EMIT m_control->closed(pane->camera().info());
    QVERIFY(label(m_area.get(), "welcomeText")->isVisible());
    QVERIFY(m_area->panes().isEmpty());
}

void ImageAreaTest::testEachOpenCameraHasAPaneWithItsName()
{
    const CImagePane *first = open("A", "Left of the belt");
    const CImagePane *second = open("B");
    QCOMPARE(label(first, "name")->text(), QString("Left of the belt"));
    QCOMPARE(label(second, "name")->text(), QString("B"));
    QVERIFY(first->isVisible());
    QVERIFY(second->isVisible());
    Q_EMIT m_control->closed(first->camera().info());
    QCOMPARE(m_area->panes().size(), 1);
    QCOMPARE(&m_area->panes().constFirst()->camera(), &second->camera());
}

void ImageAreaTest::testPaneFollowsTheNewNameOfItsCamera()
{
    CImagePane *pane = open("Ostrand-XQZ-2000-1");
    open("Ostrand-XQZ-2000-2");
    m_control->rename(pane->camera().info(), "Left of the belt");
    QCOMPARE(label(pane, "name")->text(), QString("Left of the belt"));
    QCOMPARE(label(pane, "name")->toolTip(), QString("Ostrand-XQZ-2000-1"));
    QCOMPARE(pane->accessibleName(), QString("Left of the belt"));
    QCOMPARE(pane->camera().info()->displayName(), QString("Left of the belt"));
    QCOMPARE(label(m_area->panes().at(1), "name")->text(), QString("Ostrand-XQZ-2000-2"));
}

void ImageAreaTest::testPaneHasTheNewNameOfACameraThatWasOpenedByItsOldOne()
{
    const auto camera = m_control->plugIn("Ostrand-XQZ-2000-1");
    m_control->rename(camera, "Left of the belt");
    Q_EMIT m_status->deviceOpened(camera);
    QCOMPARE(label(m_area->panes().constLast(), "name")->text(), QString("Left of the belt"));
}

void ImageAreaTest::testPanesOfTheSameNameHaveTheSerialNumbersBesideIt()
{
    CImagePane *first = open("Ostrand-XQZ-2000-A1", "Line3");
    QCOMPARE(label(first, "name")->text(), QString("Line3"));
    const auto other = m_control->plugIn("Ostrand-XQZ-2000-B2", "XQZ-2000", "Line3");
    Q_EMIT m_status->deviceConnected(other);
    QCOMPARE(label(first, "name")->text(), QString("Line3 (A1)"));
    Q_EMIT m_status->deviceOpened(other);
    QCOMPARE(label(m_area->panes().at(1), "name")->text(), QString("Line3 (B2)"));
    m_control->rename(other, "Line4");
    QCOMPARE(label(first, "name")->text(), QString("Line3"));
    QCOMPARE(label(m_area->panes().at(1), "name")->text(), QString("Line4"));
}

void ImageAreaTest::testPanesStandInAGrid_data()
{
    QTest::addColumn<int>("cameras");
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("rows");

    QTest::newRow("one fills the area") << 1 << 1 << 1;
    QTest::newRow("two side by side") << 2 << 2 << 1;
    QTest::newRow("three") << 3 << 2 << 2;
    QTest::newRow("four") << 4 << 2 << 2;
    QTest::newRow("five") << 5 << 3 << 2;
    QTest::newRow("nine") << 9 << 3 << 3;
}

void ImageAreaTest::testPanesStandInAGrid()
{
    QFETCH(int, cameras);
    for (int i = 0; i < cameras; ++i) {
        open(qPrintable(QString::number(i)));
    }
    QCoreApplication::sendPostedEvents();
    QSet<int> lefts;
    QSet<int> tops;
    for (const CImagePane *pane : m_area->panes()) {
        lefts.insert(pane->mapTo(m_area.get(), {}).x());
        tops.insert(pane->mapTo(m_area.get(), {}).y());
    }
    QTEST(lefts.size(), "columns");
    QTEST(tops.size(), "rows");
}

// Whatever is written in them.
void ImageAreaTest::testPanesAreOfOneWidth()
{
    m_area->resize(360, 240);
    CImagePane *first =
        open("A", "A camera with a name that is much longer than there is room for");
    const CImagePane *second = open("B");
    give(first, greyResult(std::vector<std::uint8_t>(1000)));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(first->width(), second->width());
    QCOMPARE(m_area->width(), 360);
}

void ImageAreaTest::testWordsWithoutAnImage()
{
    CImagePane *pane = open("A");
    QVERIFY(label(pane, "words")->isVisible());
    QCOMPARE(label(pane, "words")->text(), QString("Grab to see an image"));
    Q_EMIT m_status->cameraGrabStarted(pane->camera().info());
    QCOMPARE(label(pane, "words")->text(), QString("No image yet"));
    Q_EMIT m_status->cameraGrabStopped(pane->camera().info());
    QCOMPARE(label(pane, "words")->text(), QString("Grab to see an image"));
}

void ImageAreaTest::testWordsForAnImageThatCannotBeShown_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("words");

    const QString unknown = "The pixel format %1 cannot be shown: choose another one in the "
                            "camera's features, such as Mono8, BayerRG8 or RGB8.";
    QTest::newRow("a format of a maker") << 1 << 0x810C0001U << unknown.arg("0x810c0001");
    QTest::newRow("a format known by its name") << 1 << 0x02180021U << unknown.arg("RGB8_Planar");
    QTest::newRow("too few bytes") << 9 << 0x01080001U
                                   << "The image has fewer bytes than its size and its pixel "
                                      "format Mono8 ask for: stop the grab and start it again.";
    QTest::newRow("no image") << 0 << 0x01080001U
                              << "What the camera sends is not an image: choose image data in its "
                                 "features.";
}

void ImageAreaTest::testWordsForAnImageThatCannotBeShown()
{
    QFETCH(int, width);
    QFETCH(quint32, code);
    CImagePane *pane = open("A");
    give(pane, greyResult({1}));
    give(pane, std::make_shared<Nerix::CGrabResultData>(testImage(width, 1, code, {1, 2})));
    QVERIFY(label(pane, "words")->isVisible());
    QTEST(label(pane, "words")->text(), "words");
    QVERIFY(pane->view().image().screen.isNull());
}

void ImageAreaTest::testImageReplacesTheWords()
{
    CImagePane *pane = open("A");
    give(pane, greyResult({1, 2}));
    QVERIFY(!label(pane, "words")->isVisible());
    QCOMPARE(pane->view().image().screen.size(), QSize(2, 1));
}

void ImageAreaTest::testFailuresAreShownOverTheImage()
{
    CImagePane *pane = open("A");
    const auto info = pane->camera().info();
    QSignalSpy changed(&pane->camera(), &CLiveCamera::stateChanged);
    QVERIFY(!label(pane, "failure")->isVisible());
    Q_EMIT m_news->resultArrived(info, failedResult(1, "Packets were lost."));
    Q_EMIT m_news->resultArrived(info, failedResult(1, "Packets were lost."));
    QVERIFY(changed.wait());
    QVERIFY(label(pane, "failure")->isVisible());
    QCOMPARE(label(pane, "failure")->text(),
             QString("Failed images: 2. The last one: Packets were lost."));
    QVERIFY(label(pane, "failure")->testAttribute(Qt::WA_TransparentForMouseEvents));
    Q_EMIT m_status->cameraGrabStarted(info);
    QVERIFY(!label(pane, "failure")->isVisible());
}

void ImageAreaTest::testPixelUnderThePointer_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("text");

    QTest::newRow("grey") << 0x01080001U << QByteArray("\x07\x80") << "x 1, y 0: 128";
    QTest::newRow("grey in the camera's own bits")
        << 0x01100005U << QByteArray("\x00\x00\xff\x0f", 4) << "x 1, y 0: 4095";
    QTest::newRow("colour") << 0x02180014U << QByteArray("\x00\x00\x00\x01\x02\x03", 6)
                            << "x 1, y 0: R 1, G 2, B 3";
}

void ImageAreaTest::testPixelUnderThePointer()
{
    QFETCH(quint32, code);
    QFETCH(QByteArray, data);
    CImagePane *pane = open("A");
    give(pane, std::make_shared<Nerix::CGrabResultData>(
                   testImage(2, 1, code, {data.begin(), data.end()})));
    QCOMPARE(label(pane, "pixel")->text(), QString());
    const QRectF rect = pane->view().imageRect();
    moveMouse(&pane->view(),
              QPointF(rect.left() + 0.75 * rect.width(), rect.center().y()).toPoint());
    QTEST(label(pane, "pixel")->text(), "text");
}

void ImageAreaTest::testSizeFormatAndScale()
{
    CImagePane *pane = open("A");
    QCOMPARE(label(pane, "format")->text(), QString());
    give(pane, greyResult({1, 2}));
    pane->view().showActualSize();
    QCOMPARE(label(pane, "format")->text(), QString::fromUtf8("2 \xc3\x97 1, Mono8, 100 %"));
    pane->view().zoomIn();
    QCOMPARE(label(pane, "format")->text(), QString::fromUtf8("2 \xc3\x97 1, Mono8, 150 %"));
}

void ImageAreaTest::testPaneOfTheSelectedCameraIsMarked()
{
    const CImagePane *first = open("A");
    const CImagePane *second = open("B");
    QVERIFY(!first->isSelected() && !second->isSelected());
    m_selection->select(second->camera().info());
    QVERIFY(!first->isSelected() && second->isSelected());
    QVERIFY(label(second, "name")->font().bold());
    QVERIFY(!label(first, "name")->font().bold());
    m_selection->select(first->camera().info());
    QVERIFY(first->isSelected() && !second->isSelected());
    const QImage image = m_area->grab().toImage();
    const QPoint corner = first->mapTo(m_area.get(), QPoint(1, first->height() / 2));
    QCOMPARE(image.pixelColor(corner * m_area->devicePixelRatioF()),
             first->palette().color(QPalette::Highlight));
}

void ImageAreaTest::testClickSelectsTheCamera()
{
    CImagePane *first = open("A");
    CImagePane *second = open("B");
    QTest::mouseClick(&second->view(), Qt::LeftButton);
    QCOMPARE(
        m_selection->selected().dynamicCast<Core::CameraPoolComponents::ICameraInfo>()->identity(),
        QString("B"));
    QTest::mouseClick(first, Qt::LeftButton, {}, {10, 5}); // on its name
    QVERIFY(first->isSelected());
}

void ImageAreaTest::testCurrentPane()
{
    QSignalSpy changed(m_area.get(), &CImageArea::currentChanged);
    QVERIFY(!m_area->currentPane());
    const CImagePane *first = open("A");
    QCOMPARE(m_area->currentPane(), first); // the only one
    QVERIFY(changed.count() > 0);
    const CImagePane *second = open("B");
    QVERIFY(!m_area->currentPane());
    changed.clear();
    m_selection->select(second->camera().info());
    QCOMPARE(m_area->currentPane(), second);
    QCOMPARE(changed.count(), 1);
    Q_EMIT m_control->closed(second->camera().info());
    QCOMPARE(m_area->currentPane(), first);
}

void ImageAreaTest::testHasNamesForScreenReaders()
{
    const CImagePane *pane = open("A", "Left of the belt");
    QCOMPARE(m_area->accessibleName(), QString("Images"));
    QCOMPARE(pane->accessibleName(), QString("Left of the belt"));
    QCOMPARE(pane->view().accessibleName(), QString("Image of Left of the belt"));
    QCOMPARE(pane->view().accessibleDescription(), QString("Grab to see an image"));
    QVERIFY(!label(pane, "pixel")->accessibleName().isEmpty());
    QVERIFY(!label(pane, "format")->accessibleName().isEmpty());
}

QTEST_MAIN(ImageAreaTest)
#include "ImageAreaTest.moc"
