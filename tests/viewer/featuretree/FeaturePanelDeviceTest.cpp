// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "../parametercollectionpool/COpenCamera.h"
#include "CPanelRig.h"
#include "plugins/camerapool/CCameraControl.h"
#include "plugins/camerapool/CCameraStatus.h"
#include "plugins/featuretree/CChoiceEdit.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// The panel with a simulated camera.
class FeaturePanelDeviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEditReachesTheCameraAndIsToldOnce();
    void testEntriesAreThoseOfTheCamera();
    void testRefusalOfTheCameraIsShownAndNotTold();
    void testLimitsFollowAnotherFeature();
    void testGrabLocksWhatItMust();
    void testCameraThatVanishesIsToldInWords();
    void testRenamedCameraThatVanishedShowsItsFeaturesAgain();
    void testAllOf840FeaturesAreShownAndFound();

private:
    bool open(const QStringList &options = {});
    QString toolTip(const char *name) const;

    std::unique_ptr<COpenCamera> m_camera;
    std::unique_ptr<CPanelRig> m_rig;
};

void FeaturePanelDeviceTest::init()
{
    m_rig = std::make_unique<CPanelRig>();
}

void FeaturePanelDeviceTest::cleanup()
{
    m_rig.reset();
    m_camera.reset();
}

bool FeaturePanelDeviceTest::open(const QStringList &options)
{
    m_camera = std::make_unique<COpenCamera>(options);
    if (!m_camera->isOpen()) {
        return false;
    }
    CFeatureServices services = m_rig->features.services();
    services.control = m_camera->rig().pool().control();
    services.status = m_camera->rig().pool().status();
    services.parameters = QSharedPointer<ParameterCollectionPool::IParameterService>(
        &m_camera->service(), [](ParameterCollectionPool::IParameterService *) {});
    m_rig->features.deviceSelection->select(m_camera->info());
    return m_rig->show(services)
           && QTest::qWaitFor([this] { return m_rig->row("Width").isValid(); }, 30000);
}

QString FeaturePanelDeviceTest::toolTip(const char *name) const
{
    return m_rig->row(name).data(Qt::ToolTipRole).toString();
}

void FeaturePanelDeviceTest::testEditReachesTheCameraAndIsToldOnce()
{
    QVERIFY(open());
    QSignalSpy told(m_camera->feature("Width").data(), &IParameter::parameterValueAboutToBeSet);
    QVERIFY(m_rig->edit("Width", "640", Qt::Key_Return));
    QTRY_COMPARE(m_camera->feature("Width")->valueText(), QString("640"));
    QTRY_COMPARE(m_rig->value("Width"), QString("640 px"));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toString(), QString("640"));
}

void FeaturePanelDeviceTest::testEntriesAreThoseOfTheCamera()
{
    QVERIFY(open());
    QVERIFY(m_rig->goTo("PixelFormat"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    auto *choice = qobject_cast<CChoiceEdit *>(m_rig->editor());
    QVERIFY(choice);
    QCOMPARE(choice->count(), 3);
    QCOMPARE(choice->currentText(), QString("Mono8"));
    QTRY_VERIFY(choice->view()->isVisible());
    QTest::keyClick(choice->view(), Qt::Key_Down);
    QTest::keyClick(choice->view(), Qt::Key_Return);
    QTRY_COMPARE(m_camera->feature("PixelFormat")->valueText(), QString("Mono16"));
}

void FeaturePanelDeviceTest::testRefusalOfTheCameraIsShownAndNotTold()
{
    QVERIFY(open());
    QSignalSpy told(m_camera->feature("Width").data(), &IParameter::parameterValueAboutToBeSet);
    QVERIFY(m_rig->edit("Width", "99999", Qt::Key_Return));
    QTRY_COMPARE(m_rig->problem(), QString("Width: 99999 is out of range: give a number from 16 "
                                           "to 2048 in steps of 4"));
    QCOMPARE(m_rig->value("Width"), QString("512 px"));
    QCOMPARE(told.size(), 0);
}

void FeaturePanelDeviceTest::testLimitsFollowAnotherFeature()
{
    QVERIFY(open());
    m_rig->panel().controller().setRefreshInterval(std::chrono::hours(1));
    QTRY_VERIFY2(toolTip("OffsetX").contains("0 to 1536"), qPrintable(toolTip("OffsetX")));
    QVERIFY(m_rig->edit("Width", "1024", Qt::Key_Return));
    QTRY_VERIFY2(toolTip("OffsetX").contains("0 to 1024"), qPrintable(toolTip("OffsetX")));
}

void FeaturePanelDeviceTest::testGrabLocksWhatItMust()
{
    QVERIFY(open());
    QVERIFY(m_rig->goTo("Width"));
    m_camera->rig().pool().control()->grabContinuous(m_camera->info());
    const auto spoken = [this](const char *name) {
        return m_rig->row(name).siblingAtColumn(1).data(Qt::AccessibleTextRole).toString();
    };
    QTRY_COMPARE(spoken("Width"), QString("512 px, locked"));
    QVERIFY(m_rig->goTo("ExposureTime"));
    QCOMPARE(spoken("ExposureTime"), QString("10000 us"));
    QVERIFY(m_rig->goTo("Width"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QVERIFY(!m_rig->editor());
    m_camera->rig().pool().control()->stopGrab(m_camera->info());
    QTRY_COMPARE(spoken("Width"), QString("512 px"));
}

void FeaturePanelDeviceTest::testCameraThatVanishesIsToldInWords()
{
    QVERIFY(open());
    const QString name = m_camera->info()->displayName();
    QCOMPARE(m_camera->simulator().command("vanish"), QString("vanished"));
    QTRY_COMPARE_WITH_TIMEOUT(m_rig->notice(),
                              name + " is not connected.\nConnect and open it to see its features.",
                              30000);
}

// The search describes it anew after the renaming; it is still the camera that is selected.
void FeaturePanelDeviceTest::testRenamedCameraThatVanishedShowsItsFeaturesAgain()
{
    QVERIFY(open());
    CPoolRig &pool = m_camera->rig();
    m_camera->feature("DeviceUserID")->setValueText("Line3");
    QCOMPARE(m_camera->simulator().command("vanish"), QString("vanished"));
    QTRY_VERIFY_WITH_TIMEOUT(m_rig->notice().contains("is not connected"), 30000);
    pool.clearLog();
    QCOMPARE(m_camera->simulator().command("return"), QString("returned"));
    QVERIFY(pool.waitFor("connected A1"));
    QTRY_COMPARE(m_rig->notice(), QString("Line3 is closed.\nOpen it to see its features."));
    QVERIFY(pool.open(pool.camera("A1")));
    QTRY_VERIFY_WITH_TIMEOUT(m_rig->row("Width").isValid(), 30000);
    QCOMPARE(m_rig->notice(), QString());
}

void FeaturePanelDeviceTest::testAllOf840FeaturesAreShownAndFound()
{
    QVERIFY(open({"--features", "840"}));
    m_rig->level().setCurrentIndex(2);
    const CFeatureModel &model = m_rig->panel().controller().model();
    int shown = 0;
    for (const auto &parameter : m_camera->parameters().parameters()) {
        const int feature = model.featureNamed(parameter->fullName());
        QVERIFY2(feature >= 0, qPrintable(parameter->fullName()));
        shown += parameter->interfaceType() == InterfaceCategory ? 0 : 1;
    }
    QVERIFY2(shown >= 840, qPrintable(QString::number(shown)));
    m_rig->view().scrollToBottom();
    QTRY_VERIFY(!m_rig->view().featuresInSight().isEmpty());
    const int last = m_rig->view().featuresInSight().last();
    QTRY_VERIFY(model.state(last).isKnown);
    QTest::keyClicks(&m_rig->search(), "exposure");
    QVERIFY(m_rig->row("ExposureTime").isValid());
    QVERIFY(!m_rig->row("Width").isValid());
}

QTEST_MAIN(FeaturePanelDeviceTest)
#include "FeaturePanelDeviceTest.moc"
