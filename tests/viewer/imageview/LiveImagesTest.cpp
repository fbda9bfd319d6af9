// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/CLiveImages.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "TestImage.h"

#include <atomic>
#include <memory>
#include <thread>

#include <QSignalSpy>
#include <QTest>

using CameraPool::CImageNews;
using ImageView::CLiveCamera;
using ImageView::CLiveImages;
using ImageView::Problem;

// From the grab's thread to what is shown. There is no window.
class LiveImagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testThereIsAnImageForEachOpenCamera();
    void testCameraThatIsGoneOrNoCameraIsNotShown();
    void testImageIsConvertedAndShown();
    void testConversionIsNeverInTheThreadOfTheGrabOrTheWindows();
    void testImagesThatTheGuiHasNoTimeForAreDropped();
    void testOneImageIsConvertedAtATime();
    void testOtherCamerasAreNotTouched();
    void testUnknownFormatIsAProblem();
    void testGrabbingStartsAndStops();
    void testFailuresAreCountedAndTold();
    void testNewGrabForgetsTheFailures();
    void testFailureKeepsTheImage();
    void testCameraThatIsClosedWhileAnImageIsConverted();
    void testImageOfAGrabThatBeganBeforeTheOpeningWasHeardOf();
    void testEndWhileImagesArrive();

private:
    CLiveCamera *open(const char *identity);
    void put(const CFakeCameraControl::CameraInfoPtr &camera, const Nerix::CGrabResultPtr &result);

    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    QSharedPointer<CImageNews> m_news;
    std::unique_ptr<CLiveImages> m_images;
};

void LiveImagesTest::init()
{
    m_images.reset();
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_news = QSharedPointer<CImageNews>::create();
    m_images = std::make_unique<CLiveImages>(CLiveImages::Services{m_control, m_status, m_news});
}

CLiveCamera *LiveImagesTest::open(const char *identity)
{
    const auto camera = m_control->plugIn(identity);
    Q_EMIT m_status->deviceOpened(camera);
    return m_images->find(camera);
}

// As a grab does.
void LiveImagesTest::put(const CFakeCameraControl::CameraInfoPtr &camera,
                         const Nerix::CGrabResultPtr &result)
{
    std::thread([&] { Q_EMIT m_news->resultArrived(camera, result); }).join();
}

void LiveImagesTest::testThereIsAnImageForEachOpenCamera()
{
    const QSignalSpy added(m_images.get(), &CLiveImages::cameraAdded);
    const QSignalSpy removed(m_images.get(), &CLiveImages::cameraRemoved);
    CLiveCamera *first = open("A");
    CLiveCamera *second = open("B");
    QCOMPARE(m_images->cameras(), (QList<CLiveCamera *>{first, second}));
    Q_EMIT m_status->deviceOpened(first->info());
    QCOMPARE(added.count(), 2);
    Q_EMIT m_control->closed(first->info());
    QCOMPARE(m_images->cameras(), QList<CLiveCamera *>{second});
    Q_EMIT m_status->deviceDisconnected(second->info());
    QVERIFY(m_images->cameras().isEmpty());
    QCOMPARE(removed.count(), 2);
}

void LiveImagesTest::testCameraThatIsGoneOrNoCameraIsNotShown()
{
    using Core::CameraPoolComponents::DeviceBaseInfoPtr;
    Q_EMIT m_status->deviceOpened(DeviceBaseInfoPtr::create());
    Q_EMIT m_status->deviceOpened({});
    Q_EMIT m_control->closed(m_control->plugIn("A"));
    QVERIFY(m_images->cameras().isEmpty());
    QVERIFY(!m_images->find(DeviceBaseInfoPtr()));
}

void LiveImagesTest::testImageIsConvertedAndShown()
{
    CLiveCamera *camera = open("A");
    QVERIFY(!camera->image().result);
    QVERIFY(camera->image().screen.isNull());
    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    const auto result = greyResult({7, 200});
    put(camera->info(), result);
    QVERIFY(changed.wait());
    QCOMPARE(camera->image().result, result);
    QVERIFY(camera->image().problem == Problem::None);
    QVERIFY(camera->image().time.isValid());
    QCOMPARE(camera->image().screen.size(), QSize(2, 1));
    QCOMPARE(camera->image().screen.pixel(1, 0), qRgb(200, 200, 200));
}

// The image is not there when the grab's signal returns, and not when the GUI thread has heard of
// it.
void LiveImagesTest::testConversionIsNeverInTheThreadOfTheGrabOrTheWindows()
{
    CLiveCamera *camera = open("A");
    put(camera->info(), greyResult({7}));
    QVERIFY(!camera->image().result);
    QCoreApplication::sendPostedEvents(m_images.get());
    QVERIFY(!camera->image().result);
    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    QVERIFY(changed.wait());
}

void LiveImagesTest::testImagesThatTheGuiHasNoTimeForAreDropped()
{
    CLiveCamera *camera = open("A");
    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    std::vector<std::weak_ptr<const Nerix::CGrabResultData>> images;
    for (int i = 0; i < 200; ++i) {
        const auto image = greyResult({std::uint8_t(i)});
        images.push_back(image);
        put(camera->info(), image);
    }
    for (int i = 0; i < 199; ++i) {
        QVERIFY(images.at(std::size_t(i)).expired());
    }
    QVERIFY(changed.wait());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(camera->image().screen.pixel(0, 0), qRgb(199, 199, 199));
}

// The next image waits where a newer one takes its place.
void LiveImagesTest::testOneImageIsConvertedAtATime()
{
    CLiveCamera *camera = open("A");
    put(camera->info(), greyResult({1}));
    QCoreApplication::sendPostedEvents(m_images.get());
    auto next = greyResult({2});
    const std::weak_ptr<const Nerix::CGrabResultData> waiting = next;
    put(camera->info(), next);
    next.reset();
    QCoreApplication::sendPostedEvents(m_images.get());
    put(camera->info(), greyResult({3}));
    QVERIFY(waiting.expired());

    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    QVERIFY(QTest::qWaitFor([&] { return changed.count() == 2; }));
    QCOMPARE(camera->image().screen.pixel(0, 0), qRgb(3, 3, 3));
}

void LiveImagesTest::testOtherCamerasAreNotTouched()
{
    CLiveCamera *first = open("A");
    CLiveCamera *second = open("B");
    QSignalSpy changed(second, &CLiveCamera::imageChanged);
    put(second->info(), greyResult({7}));
    QVERIFY(changed.wait());
    QVERIFY(!first->image().result);
}

void LiveImagesTest::testUnknownFormatIsAProblem()
{
    CLiveCamera *camera = open("A");
    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    put(camera->info(),
        std::make_shared<Nerix::CGrabResultData>(testImage(1, 1, 0x810C0001, {1, 2})));
    QVERIFY(changed.wait());
    QVERIFY(camera->image().problem == Problem::UnknownFormat);
    QVERIFY(camera->image().screen.isNull());
    QVERIFY(camera->image().result);
}

void LiveImagesTest::testGrabbingStartsAndStops()
{
    CLiveCamera *camera = open("A");
    const QSignalSpy changed(camera, &CLiveCamera::stateChanged);
    QVERIFY(!camera->isGrabbing());
    Q_EMIT m_status->cameraGrabStarted(camera->info());
    QVERIFY(camera->isGrabbing());
    Q_EMIT m_status->cameraGrabStopped(camera->info());
    QVERIFY(!camera->isGrabbing());
    QCOMPARE(changed.count(), 2);
}

void LiveImagesTest::testFailuresAreCountedAndTold()
{
    CLiveCamera *camera = open("A");
    QSignalSpy told(m_images.get(), &CLiveImages::imagesFailed);
    const CLiveCamera *teller = nullptr;
    connect(m_images.get(), &CLiveImages::imagesFailed, m_status.get(),
            [&teller](const CLiveCamera *who) { teller = who; });
    put(camera->info(), failedResult(1, "lost"));
    put(camera->info(), failedResult(1, "lost"));
    put(camera->info(), failedResult(2, "late"));
    QVERIFY(told.wait());
    QCOMPARE(told.count(), 2);
    QCOMPARE(teller, camera);
    QCOMPARE(told.at(0).at(1).toString(), QString("lost"));
    QCOMPARE(told.at(0).at(2).toInt(), 2);
    QCOMPARE(told.at(1).at(1).toString(), QString("late"));
    QCOMPARE(told.at(1).at(2).toInt(), 1);
    QCOMPARE(camera->failureCount(), 3);
    QCOMPARE(camera->lastFailure(), QString("late"));
}

void LiveImagesTest::testNewGrabForgetsTheFailures()
{
    CLiveCamera *camera = open("A");
    QSignalSpy told(m_images.get(), &CLiveImages::imagesFailed);
    put(camera->info(), failedResult(1, "lost"));
    QVERIFY(told.wait());
    Q_EMIT m_status->cameraGrabStopped(camera->info());
    QCOMPARE(camera->failureCount(), 1);
    Q_EMIT m_status->cameraGrabStarted(camera->info());
    QCOMPARE(camera->failureCount(), 0);
    QVERIFY(camera->lastFailure().isEmpty());
}

void LiveImagesTest::testFailureKeepsTheImage()
{
    CLiveCamera *camera = open("A");
    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    QSignalSpy failed(camera, &CLiveCamera::imagesFailed);
    const auto result = greyResult({7});
    put(camera->info(), result);
    QVERIFY(changed.wait());
    put(camera->info(), failedResult(1, "lost"));
    QVERIFY(failed.count() > 0 || failed.wait());
    QCOMPARE(camera->image().result, result);
}

void LiveImagesTest::testCameraThatIsClosedWhileAnImageIsConverted()
{
    CLiveCamera *camera = open("A");
    const auto info = camera->info();
    std::weak_ptr<const Nerix::CGrabResultData> image;
    {
        const auto result = greyResult(std::vector<std::uint8_t>(1000000));
        image = result;
        put(info, result);
    }
    QCoreApplication::sendPostedEvents(m_images.get());
    Q_EMIT m_control->closed(info);
    QVERIFY(QTest::qWaitFor([&] { return image.expired(); }));
}

// The opening is told in another thread than the images are.
void LiveImagesTest::testImageOfAGrabThatBeganBeforeTheOpeningWasHeardOf()
{
    const auto info = m_control->plugIn("A");
    std::thread([&] {
        Q_EMIT m_status->deviceOpened(info);
        Q_EMIT m_news->resultArrived(info, greyResult({9}));
    }).join();
    QVERIFY(QTest::qWaitFor([&] {
        CLiveCamera *camera = m_images->find(info);
        return camera && camera->image().result;
    }));
}

void LiveImagesTest::testEndWhileImagesArrive()
{
    CLiveCamera *camera = open("A");
    const auto info = camera->info();
    std::atomic<bool> isOver{false};
    std::atomic<int> count{0};
    std::thread grab([&] {
        for (; !isOver; ++count) {
            Q_EMIT m_news->resultArrived(info, greyResult({1, 2, 3}));
        }
    });
    QSignalSpy changed(camera, &CLiveCamera::imageChanged);
    QVERIFY(changed.wait());
    m_images.reset();
    const int before = count;
    QVERIFY(QTest::qWaitFor([&] { return count > before + 10; }));
    isOver = true;
    grab.join();
}

QTEST_GUILESS_MAIN(LiveImagesTest)
#include "LiveImagesTest.moc"
