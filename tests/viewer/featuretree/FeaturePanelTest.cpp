// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"

#include <QApplication>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// The panel as a whole: what it says, what it finds, what it reads and when.
class FeaturePanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testWordsStandWhereThereAreNoFeatures();
    void testWordsHaveTheNameThatTheCameraHasNow();
    void testRenamingLeavesTheFeaturesAsTheyAre();
    void testDeviceThatCannotBeReadIsToldWithTheReason();
    void testDeviceIsReadWhileTheWindowGoesOn();
    void testOnlyRowsInSightAreRead();
    void testValueIsReadAgainWhenNothingHappens();
    void testHiddenPanelReadsNothing();
    void testChangeBySomebodyElseIsShown();
    void testSearchFindsAndLeavesTheSelectionAlone();
    void testNothingFoundIsSaid();
    void testLevelIsRemembered();
    void testPickedFeatureBecomesCurrentOnce();
    void testFeatureThatAScriptSelectsIsShown();
    void testCurrentFeatureIsExplained();
    void testCategoryThatWasClosedStaysClosed();
    void testNamesLeaveRoomForTheValues();
    void testEverythingHasANameForScreenReaders();

private:
    QScopedPointer<CPanelRig> m_rig;
    QSharedPointer<CLiveInteger> m_width;
    QSharedPointer<CLiveText> m_label;
    QSharedPointer<CLiveFloat> m_gain;
};

void FeaturePanelTest::init()
{
    m_rig.reset(new CPanelRig);
    m_rig->features.addCategory("Control", "Image Control");
    m_width = m_rig->features.add<CLiveInteger>("Width", InterfaceInteger, "640");
    m_width->change([](CLiveState &state) { state.displayName = "Image Width"; });
    m_label = m_rig->features.add<CLiveText>("Label", InterfaceString, "left");
    m_rig->features.addCategory("Analog", "Analog");
    m_gain = m_rig->features.add<CLiveFloat>("Gain", InterfaceFloat, "1.5", "Analog");
    m_gain->change([](CLiveState &state) { state.visibility = VisibilityExpert; });
}

void FeaturePanelTest::cleanup()
{
    m_rig.reset();
}

void FeaturePanelTest::testWordsStandWhereThereAreNoFeatures()
{
    QVERIFY(m_rig->show());
    CFeatureRig &features = m_rig->features;
    QCOMPARE(m_rig->notice(), QString("Select a camera to see its features."));
    features.deviceSelection->select(features.camera);
    QCOMPARE(m_rig->notice(), QString("A-1 is closed.\nOpen it to see its features."));
    m_width->hold();
    QVERIFY(features.openCamera());
    QTRY_COMPARE(m_rig->notice(), QString());
    m_width->release();
    QVERIFY(features.closeCamera());
    QCOMPARE(m_rig->notice(), QString("A-1 is closed.\nOpen it to see its features."));
    features.unplugCamera();
    QCOMPARE(m_rig->notice(),
             QString("A-1 is not connected.\nConnect and open it to see its features."));
    features.deviceSelection->select({});
    QCOMPARE(m_rig->notice(), QString("Select a camera to see its features."));
}

void FeaturePanelTest::testWordsHaveTheNameThatTheCameraHasNow()
{
    QVERIFY(m_rig->show());
    CFeatureRig &features = m_rig->features;
    features.deviceSelection->select(features.camera);
    features.control->rename(features.camera, "Line3");
    QCOMPARE(m_rig->notice(), QString("Line3 is closed.\nOpen it to see its features."));
    features.deviceSelection->select({});
    features.deviceSelection->select(features.camera); // who selects may not know the new name
    QCOMPARE(m_rig->notice(), QString("Line3 is closed.\nOpen it to see its features."));
}

void FeaturePanelTest::testRenamingLeavesTheFeaturesAsTheyAre()
{
    QVERIFY(m_rig->open());
    const QSignalSpy reset(&m_rig->panel().controller().model(), &CFeatureModel::modelReset);
    m_rig->features.control->rename(m_rig->features.camera, "Line3");
    QCOMPARE(m_rig->notice(), QString());
    QCOMPARE(reset.count(), 0);
    QVERIFY(m_rig->features.closeCamera()); // told with the old description, like a real closing
    QCOMPARE(m_rig->notice(), QString("Line3 is closed.\nOpen it to see its features."));
}

void FeaturePanelTest::testDeviceThatCannotBeReadIsToldWithTheReason()
{
    m_rig->features.collection->listThrows = true;
    QVERIFY(m_rig->show());
    QVERIFY(m_rig->features.openCamera());
    m_rig->features.deviceSelection->select(m_rig->features.camera);
    QCOMPARE(m_rig->notice(), QString("Reading the features of A-1..."));
    QTRY_COMPARE(m_rig->notice(),
                 QString("The features of A-1 cannot be read.\nClose it and open it again.\n"
                         "parameters failed"));
}

void FeaturePanelTest::testDeviceIsReadWhileTheWindowGoesOn()
{
    m_width->hold();
    QVERIFY(m_rig->open());
    QTRY_VERIFY(m_width->isWaitedFor());
    QTest::keyClicks(&m_rig->search(), "label");
    QVERIFY(!m_rig->row("Width").isValid());
    QVERIFY(m_rig->row("Label").isValid());
    QVERIFY(m_width->isWaitedFor());
    m_width->release();
    QTRY_COMPARE(m_rig->value("Label"), QString("left"));
    QVERIFY(!m_width->wasUsedIn(QThread::currentThread()));
}

void FeaturePanelTest::testOnlyRowsInSightAreRead()
{
    QVector<QSharedPointer<CLiveInteger>> many;
    for (int i = 0; i < 200; ++i) {
        const QByteArray name = "Many" + QByteArray::number(i);
        many.append(m_rig->features.add<CLiveInteger>(name.constData(), InterfaceInteger, "5"));
    }
    QVERIFY(m_rig->open());
    QTRY_COMPARE(m_rig->value("Many0"), QString("5"));
    QCOMPARE(many.last()->reads(), 0);
    m_rig->view().scrollToBottom();
    QTRY_COMPARE(m_rig->value("Many199"), QString("5"));
    QCOMPARE(many.at(100)->reads(), 0);
}

void FeaturePanelTest::testValueIsReadAgainWhenNothingHappens()
{
    QVERIFY(m_rig->open());
    m_rig->panel().controller().setRefreshInterval(std::chrono::milliseconds(10));
    QTRY_COMPARE(m_rig->value("Width"), QString("640"));
    m_width->change([](CLiveState &state) { state.text = "320"; });
    QTRY_COMPARE(m_rig->value("Width"), QString("320"));
    m_width->change([](CLiveState &state) { state.mode = AccessReadOnly; });
    QTRY_VERIFY(m_rig->row("Width")
                    .siblingAtColumn(1)
                    .data(Qt::AccessibleTextRole)
                    .toString()
                    .contains("locked"));
}

void FeaturePanelTest::testHiddenPanelReadsNothing()
{
    QVERIFY(m_rig->open());
    m_rig->panel().controller().setRefreshInterval(std::chrono::milliseconds(1));
    QTRY_VERIFY(m_width->reads() > 2);
    m_rig->panel().hide();
    QVERIFY(m_rig->view().featuresInSight().isEmpty());
    QSignalSpy changed(&m_rig->view(), &CFeatureView::sightChanged);
    QVERIFY(changed.wait());
    const int before = m_width->reads(); // one more may be under way
    m_rig->panel().controller().model().setData(
        m_rig->panel().controller().model().indexOf(2, CFeatureModel::ValueColumn), "right",
        Qt::EditRole);
    QTRY_COMPARE(m_label->sets(), QStringList{"right"});
    QVERIFY(m_width->reads() <= before + 1);
}

void FeaturePanelTest::testChangeBySomebodyElseIsShown()
{
    QVERIFY(m_rig->open());
    m_rig->panel().controller().setRefreshInterval(std::chrono::hours(1));
    QTRY_COMPARE(m_rig->value("Label"), QString("left"));
    m_label->setValueText("right");
    QTRY_COMPARE(m_rig->value("Label"), QString("right"));
}

void FeaturePanelTest::testSearchFindsAndLeavesTheSelectionAlone()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Width"));
    QCOMPARE(m_rig->features.featureSelection->current().data(), m_width.data());
    QSignalSpy current(m_rig->features.featureSelection.data(),
                       &IFeatureTreeStatusService::currentChanged);
    QTest::keyClick(&m_rig->panel(), Qt::Key_F, Qt::ControlModifier);
    QVERIFY(m_rig->search().hasFocus());
    QTest::keyClicks(&m_rig->search(), "label");
    QVERIFY(!m_rig->row("Width").isValid());
    QVERIFY(m_rig->row("Label").isValid());
    QCOMPARE(m_rig->row("Label").parent().data().toString(), QString("Image Control"));
    QTest::keyClicks(&m_rig->search(), "x");
    m_rig->search().clear();
    QVERIFY(m_rig->row("Width").isValid());
    QCOMPARE(current.size(), 0);
}

void FeaturePanelTest::testNothingFoundIsSaid()
{
    QVERIFY(m_rig->open());
    QTest::keyClicks(&m_rig->search(), "gain");
    QCOMPARE(m_rig->notice(), QString("No feature at this level has \"gain\" in its name."));
    m_rig->level().setCurrentIndex(1);
    QCOMPARE(m_rig->notice(), QString());
    QVERIFY(m_rig->row("Gain").isValid());
}

void FeaturePanelTest::testLevelIsRemembered()
{
    QVERIFY(m_rig->open());
    QCOMPARE(m_rig->level().currentText(), QString("Beginner"));
    QVERIFY(!m_rig->row("Gain").isValid());
    QTest::keyClick(&m_rig->level(), Qt::Key_Down);
    QVERIFY(m_rig->row("Gain").isValid());
    QCOMPARE(QSettings().value("FeatureTree/Level").toInt(), 1);
    QVERIFY(m_rig->show());
    QCOMPARE(m_rig->level().currentText(), QString("Expert"));
    QTRY_VERIFY(m_rig->row("Gain").isValid());
}

void FeaturePanelTest::testPickedFeatureBecomesCurrentOnce()
{
    QSignalSpy current(m_rig->features.featureSelection.data(),
                       &IFeatureTreeStatusService::currentChanged);
    QVERIFY(m_rig->open());
    m_rig->view().setFocus();
    QCOMPARE(current.size(), 0);
    QVERIFY(m_rig->goTo("Width"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Down);
    QCOMPARE(current.size(), 2);
    QCOMPARE(m_rig->features.featureSelection->current().data(), m_label.data());
    QTest::keyClick(&m_rig->view(), Qt::Key_Down); // a category
    QCOMPARE(current.size(), 2);
    const QRect width = m_rig->view().visualRect(m_rig->row("Width"));
    QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {}, width.center());
    QCOMPARE(current.size(), 3);
    QCOMPARE(m_rig->features.featureSelection->current().data(), m_width.data());
}

void FeaturePanelTest::testFeatureThatAScriptSelectsIsShown()
{
    QVERIFY(m_rig->open());
    QSignalSpy current(m_rig->features.featureSelection.data(),
                       &IFeatureTreeStatusService::currentChanged);
    m_rig->features.featureSelection->select(m_label);
    QCOMPARE(m_rig->view().currentIndex().data().toString(), QString("Label"));
    QCOMPARE(current.size(), 1);
}

void FeaturePanelTest::testCurrentFeatureIsExplained()
{
    m_width->change([](CLiveState &state) { state.toolTip = "Width of the image."; });
    QVERIFY(m_rig->open());
    const auto *text = m_rig->panel().findChild<QLabel *>("FeatureTree.Explanation");
    QVERIFY(m_rig->goTo("Width"));
    QTRY_COMPARE(text->text(), QString("<b>Image Width</b><br>Width of the image."
                                       "<br>Allowed: 0 to 100<br>Name: Width"));
    QVERIFY(m_rig->features.closeCamera());
    QCOMPARE(text->text(), QString());
}

void FeaturePanelTest::testCategoryThatWasClosedStaysClosed()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->view().isExpanded(m_rig->row("Control")));
    m_rig->view().setFocus();
    m_rig->view().setCurrentIndex(m_rig->row("Control"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    QVERIFY(!m_rig->view().isExpanded(m_rig->row("Control")));
    m_rig->search().setText("label"); // a search shows what it finds all the same
    QVERIFY(m_rig->view().isExpanded(m_rig->row("Control")));
    m_rig->search().clear();
    QVERIFY(!m_rig->view().isExpanded(m_rig->row("Control")));
    QVERIFY(m_rig->features.closeCamera());
    QVERIFY(m_rig->features.openCamera());
    QTRY_VERIFY(m_rig->row("Control").isValid());
    QVERIFY(!m_rig->view().isExpanded(m_rig->row("Control")));
}

void FeaturePanelTest::testNamesLeaveRoomForTheValues()
{
    m_width->change([](CLiveState &state) { state.displayName = QString(60, 'W'); });
    QVERIFY(m_rig->open());
    auto *header = m_rig->view().header();
    const auto share = [&] { return double(header->sectionSize(0)) / header->viewport()->width(); };
    for (const int width : {600, 300, 500}) {
        m_rig->panel().resize(width, 400);
        QTRY_VERIFY(share() < 0.61 && share() > 0.55);
    }
    header->resizeSection(0, 50);
    m_rig->panel().resize(400, 400);
    QCOMPARE(header->sectionSize(0), 50); // which the user wanted
}

void FeaturePanelTest::testEverythingHasANameForScreenReaders()
{
    QVERIFY(m_rig->open());
    for (const QWidget *widget :
         {static_cast<QWidget *>(&m_rig->search()), static_cast<QWidget *>(&m_rig->level()),
          static_cast<QWidget *>(&m_rig->view())}) {
        QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
    }
    QVERIFY(m_rig->goTo("Width"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QVERIFY(m_rig->editor());
    QCOMPARE(m_rig->editor()->accessibleName(), QString("Image Width"));
}

QTEST_MAIN(FeaturePanelTest)
#include "FeaturePanelTest.moc"
