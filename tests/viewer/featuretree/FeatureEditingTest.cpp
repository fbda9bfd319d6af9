// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"
#include "plugins/featuretree/CChoiceEdit.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// Changing features in the panel, by keys and by the mouse.
class FeatureEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testOneEditIsOneSet_data();
    void testOneEditIsOneSet();
    void testEscapeAndTheSameTextSetNothing_data();
    void testEscapeAndTheSameTextSetNothing();
    void testSwitchIsTurnedByTheKeyboardAndTheMouse();
    void testClickOnACheckBoxOrAButtonSelectsItsFeature_data();
    void testClickOnACheckBoxOrAButtonSelectsItsFeature();
    void testCommandIsExecutedByTheKeyboardAndTheMouse_data();
    void testCommandIsExecutedByTheKeyboardAndTheMouse();
    void testCommandThatRanSaysSoForAWhile();
    void testCommandThatIsRefusedDoesNotSayThatItRan();
    void testCommandIsNotExecutedWhenTheMouseIsReleasedElsewhere();
    void testEntryIsPickedFromThoseThatAreThereNow();
    void testListThatIsClosedWithoutAChoiceSetsNothing();
    void testRefusalIsToldAndTheOldValueComesBack();
    void testNextChangeThatIsTakenEndsTheProblem();
    void testDependentValueIsReadAfterAChange();
    void testLockedFeatureCannotBeEditedAndSaysWhy();
    void testFeatureThatIsLockedWhileItIsEditedSaysWhy();
    void testCameraThatIsClosedWhileAValueIsEditedSetsNothing_data();
    void testCameraThatIsClosedWhileAValueIsEditedSetsNothing();
    void testNewLimitsReachAnOpenEditorAndWhatIsTypedStays();
    void testSlowDeviceShowsTheNewValueMeanwhile();

private:
    QRect valueRect(const char *name) const;

    QScopedPointer<CPanelRig> m_rig;
    QSharedPointer<CLiveInteger> m_width;
    QSharedPointer<CLiveFloat> m_gain;
    QSharedPointer<CLiveText> m_label;
    QSharedPointer<CLiveBoolean> m_invert;
    QSharedPointer<CLiveEnumeration> m_format;
    QSharedPointer<CLiveText> m_reset;
};

void FeatureEditingTest::init()
{
    m_rig.reset(new CPanelRig);
    CFeatureRig &features = m_rig->features;
    features.addCategory("Control", "Control");
    m_width = features.add<CLiveInteger>("Width", InterfaceInteger, "640");
    m_gain = features.add<CLiveFloat>("Gain", InterfaceFloat, "1.5");
    m_label = features.add<CLiveText>("Label", InterfaceString, "left");
    m_invert = features.add<CLiveBoolean>("Invert", InterfaceBoolean, "false");
    m_format = features.add<CLiveEnumeration>("Format", InterfaceEnumeration, "Mono8");
    m_format->change([](CLiveState &state) {
        state.entries = QStringList{"Mono8", "Mono16", "RGB8"};
    });
    m_reset = features.add<CLiveText>("Reset", InterfaceCommand, "");
    m_reset->change([](CLiveState &state) { state.mode = AccessWriteOnly; });
}

void FeatureEditingTest::cleanup()
{
    m_rig.reset();
}

QRect FeatureEditingTest::valueRect(const char *name) const
{
    return m_rig->view().visualRect(m_rig->row(name).siblingAtColumn(1));
}

void FeatureEditingTest::testOneEditIsOneSet_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("set");
    const auto row = [](const char *rule, const char *name, const char *typed, Qt::Key end,
                        const char *set) {
        QTest::newRow(rule) << QByteArray(name) << QByteArray(typed) << int(end) << QString(set);
    };
    row("an integer with Enter", "Width", "44", Qt::Key_Return, "44");
    row("an integer of 64 bits", "Width", "9007199254740993", Qt::Key_Enter, "9007199254740993");
    row("a float is not rounded", "Gain", "0.1234567890123", Qt::Key_Return, "0.1234567890123");
    row("a text", "Label", "right of it", Qt::Key_Return, "right of it");
    row("going on with Tab", "Label", "right", Qt::Key_Tab, "right");
    row("what the device will refuse", "Width", "101", Qt::Key_Return, "101");
}

void FeatureEditingTest::testOneEditIsOneSet()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, typed);
    QFETCH(int, end);
    QFETCH(QString, set);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->edit(name.constData(), typed.constData(), Qt::Key(end)));
    QTRY_COMPARE(m_rig->value(name.constData()), set);
    QTRY_COMPARE(m_width->sets() + m_gain->sets() + m_label->sets(), QStringList{set});
}

void FeatureEditingTest::testEscapeAndTheSameTextSetNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<int>("end");
    QTest::newRow("Escape in a number")
        << QByteArray("Width") << QByteArray("44") << int(Qt::Key_Escape);
    QTest::newRow("Escape in a text")
        << QByteArray("Label") << QByteArray("x") << int(Qt::Key_Escape);
    QTest::newRow("nothing typed") << QByteArray("Width") << QByteArray() << int(Qt::Key_Return);
    QTest::newRow("the same number")
        << QByteArray("Width") << QByteArray("640") << int(Qt::Key_Return);
    QTest::newRow("the same text") << QByteArray("Label") << QByteArray("left") << int(Qt::Key_Tab);
}

void FeatureEditingTest::testEscapeAndTheSameTextSetNothing()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, typed);
    QFETCH(int, end);
    QVERIFY(m_rig->open());
    QSignalSpy wanted(&m_rig->panel().controller().model(), &CFeatureModel::changeWanted);
    QVERIFY(m_rig->edit(name.constData(), typed.constData(), Qt::Key(end)));
    QCOMPARE(wanted.size(), 0);
}

void FeatureEditingTest::testSwitchIsTurnedByTheKeyboardAndTheMouse()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Invert"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Space);
    QTRY_COMPARE(m_invert->sets(), QStringList{"true"});
    QTRY_COMPARE(m_invert->state().text, QString("true"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    QTRY_COMPARE(m_invert->sets(), (QStringList{"true", "false"}));
    QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {},
                      m_rig->checkBox("Invert").center());
    QTRY_COMPARE(m_invert->sets(), (QStringList{"true", "false", "true"}));
}

void FeatureEditingTest::testClickOnACheckBoxOrAButtonSelectsItsFeature_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("check box") << QByteArray("Invert");
    QTest::newRow("button") << QByteArray("Reset");
}

void FeatureEditingTest::testClickOnACheckBoxOrAButtonSelectsItsFeature()
{
    QFETCH(QByteArray, name);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo(name.constData()) && m_rig->goTo("Width"));
    const QRect place =
        name == "Invert" ? m_rig->checkBox(name.constData()) : valueRect(name.constData());
    QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {}, place.center());
    QTRY_COMPARE(m_invert->sets().size() + m_reset->sets().size(), 1);
    QCOMPARE(m_rig->view().currentIndex().data(CFeatureModel::NameRole).toByteArray(), name);
    QVERIFY(m_rig->view().selectionModel()->isRowSelected(m_rig->row(name.constData()).row(),
                                                          m_rig->row("Control")));
    QCOMPARE(m_rig->features.featureSelection->current()->name(), QString(name));
    const auto *text = m_rig->panel().findChild<QLabel *>("FeatureTree.Explanation");
    QVERIFY2(text->text().contains("Name: " + name), qPrintable(text->text()));
}

void FeatureEditingTest::testCommandIsExecutedByTheKeyboardAndTheMouse_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("space bar") << int(Qt::Key_Space);
    QTest::newRow("Enter") << int(Qt::Key_Return);
    QTest::newRow("mouse") << 0;
}

void FeatureEditingTest::testCommandIsExecutedByTheKeyboardAndTheMouse()
{
    QFETCH(int, key);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Reset"));
    if (key) {
        QTest::keyClick(&m_rig->view(), Qt::Key(key));
    } else {
        QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {},
                          valueRect("Reset").center());
    }
    QTRY_COMPARE(m_reset->sets(), QStringList{"Execute"});
}

void FeatureEditingTest::testCommandThatRanSaysSoForAWhile()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Reset"));
    QCOMPARE(m_rig->value("Reset"), QString("Execute"));
    m_rig->panel().controller().setSignDuration(std::chrono::hours(1));
    QTest::keyClick(&m_rig->view(), Qt::Key_Space);
    QTRY_COMPARE(m_rig->value("Reset"), QString("Executed"));
    QCOMPARE(m_rig->row("Reset").siblingAtColumn(1).data(Qt::AccessibleTextRole).toString(),
             QString("Executed"));
    m_rig->panel().controller().setSignDuration(std::chrono::milliseconds(1));
    QTest::keyClick(&m_rig->view(), Qt::Key_Space);
    QTRY_COMPARE(m_reset->sets().size(), 2);
    QTRY_COMPARE(m_rig->value("Reset"), QString("Execute"));
}

void FeatureEditingTest::testCommandThatIsRefusedDoesNotSayThatItRan()
{
    m_reset->change([](CLiveState &state) { state.setRefusal = "no"; });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Reset"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Space);
    QTRY_COMPARE(m_rig->problem(), QString("no"));
    QCOMPARE(m_rig->value("Reset"), QString("Execute"));
}

void FeatureEditingTest::testCommandIsNotExecutedWhenTheMouseIsReleasedElsewhere()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Reset"));
    QSignalSpy wanted(&m_rig->panel().controller().model(), &CFeatureModel::changeWanted);
    QTest::mousePress(m_rig->view().viewport(), Qt::LeftButton, {}, valueRect("Reset").center());
    QTest::mouseRelease(m_rig->view().viewport(), Qt::LeftButton, {}, valueRect("Width").center());
    QCOMPARE(wanted.size(), 0);
}

void FeatureEditingTest::testEntryIsPickedFromThoseThatAreThereNow()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Format"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    auto *choice = qobject_cast<CChoiceEdit *>(m_rig->editor());
    QVERIFY(choice);
    QCOMPARE(choice->count(), 3);
    QCOMPARE(choice->itemText(1), QString("Mono16"));
    QTRY_VERIFY(choice->view()->isVisible());
    QTest::keyClick(choice->view(), Qt::Key_Down);
    QTest::keyClick(choice->view(), Qt::Key_Return);
    QTRY_COMPARE(m_format->sets(), QStringList{"Mono16"});
    QTRY_VERIFY(!m_rig->editor());
    QTRY_COMPARE(m_rig->value("Format"), QString("Mono16"));
}

void FeatureEditingTest::testListThatIsClosedWithoutAChoiceSetsNothing()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Format"));
    QSignalSpy wanted(&m_rig->panel().controller().model(), &CFeatureModel::changeWanted);
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    auto *choice = qobject_cast<CChoiceEdit *>(m_rig->editor());
    QVERIFY(choice);
    QTRY_VERIFY(choice->view()->isVisible());
    QTest::keyClick(choice->view(), Qt::Key_Down);
    QTest::keyClick(choice->view(), Qt::Key_Escape);
    QTRY_VERIFY(!m_rig->editor());
    QCOMPARE(wanted.size(), 0);
}

void FeatureEditingTest::testRefusalIsToldAndTheOldValueComesBack()
{
    m_width->change([](CLiveState &state) {
        state.setRefusal = "@CameraDevice/Width: 101 is out of range: give a number from 0 to 100";
    });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->edit("Width", "101", Qt::Key_Return));
    QTRY_COMPARE(m_rig->problem(),
                 QString("Width: 101 is out of range: give a number from 0 to 100"));
    QCOMPARE(m_rig->value("Width"), QString("640"));
    QCOMPARE(m_rig->features.messages->texts,
             QStringList{"A-1: Width: 101 is out of range: give a number from 0 to 100"});
    QCOMPARE(m_width->sets(), QStringList{"101"});
}

void FeatureEditingTest::testNextChangeThatIsTakenEndsTheProblem()
{
    m_width->change([](CLiveState &state) { state.setRefusal = "no"; });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->edit("Width", "7", Qt::Key_Return));
    QTRY_COMPARE(m_rig->problem(), QString("no"));
    QVERIFY(m_rig->edit("Label", "right", Qt::Key_Return));
    QTRY_COMPARE(m_rig->problem(), QString());
}

void FeatureEditingTest::testDependentValueIsReadAfterAChange()
{
    connect(
        m_width.data(), &IParameter::parameterValueAboutToBeSet, m_label.data(),
        [this] { m_label->change([](CLiveState &state) { state.text = "dependent"; }); },
        Qt::DirectConnection);
    QVERIFY(m_rig->open());
    m_rig->panel().controller().setRefreshInterval(std::chrono::hours(1));
    QTRY_COMPARE(m_rig->value("Label"), QString("left"));
    QVERIFY(m_rig->edit("Width", "8", Qt::Key_Return));
    QTRY_COMPARE(m_rig->value("Label"), QString("dependent"));
}

void FeatureEditingTest::testLockedFeatureCannotBeEditedAndSaysWhy()
{
    m_width->change([](CLiveState &state) { state.mode = AccessReadOnly; });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Width"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QVERIFY(!m_rig->editor());
    QCOMPARE(m_rig->problem(), QString("Width: it is locked now; stop the grab, then set it"));
}

void FeatureEditingTest::testFeatureThatIsLockedWhileItIsEditedSaysWhy()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Label"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QWidget *editor = m_rig->editor();
    QVERIFY(editor);
    QTest::keyClicks(editor, "right");
    m_label->change([](CLiveState &state) { state.mode = AccessReadOnly; });
    m_rig->panel().controller().keepUpToDate({3});
    QTRY_VERIFY(m_rig->panel().controller().model().state(3).isLocked());
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(m_rig->problem(), QString("Label: it is locked now; stop the grab, then set it"));
    QCOMPARE(m_label->sets(), QStringList());
}

void FeatureEditingTest::testCameraThatIsClosedWhileAValueIsEditedSetsNothing_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("number") << QByteArray("Width");
    QTest::newRow("text") << QByteArray("Label");
    QTest::newRow("list") << QByteArray("Format");
}

void FeatureEditingTest::testCameraThatIsClosedWhileAValueIsEditedSetsNothing()
{
    QFETCH(QByteArray, name);
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo(name.constData()));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QVERIFY(m_rig->editor());
    QTest::keyClicks(m_rig->editor(), "7");
    QVERIFY(m_rig->features.closeCamera());
    QTRY_VERIFY(!m_rig->editor());
    QCOMPARE(m_rig->notice(), QString("A-1 is closed.\nOpen it to see its features."));
    QCOMPARE(m_width->sets() + m_label->sets() + m_format->sets(), QStringList());
}

void FeatureEditingTest::testNewLimitsReachAnOpenEditorAndWhatIsTypedStays()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Width"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QWidget *editor = m_rig->editor();
    QVERIFY(editor);
    QTest::keyClicks(editor, "99");
    m_width->change([](CLiveState &state) {
        state.text = "50";
        state.maximum = 60;
    });
    m_rig->panel().controller().setRefreshInterval(std::chrono::milliseconds(1));
    m_rig->panel().controller().keepUpToDate({1});
    QTRY_VERIFY(editor->toolTip().contains("0 to 60"));
    QCOMPARE(editor->property("text").toString(), QString("99"));
    QTest::keyClick(editor, Qt::Key_Up);
    QCOMPARE(editor->property("text").toString(), QString("60"));
}

void FeatureEditingTest::testSlowDeviceShowsTheNewValueMeanwhile()
{
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Label"));
    m_label->hold();
    QVERIFY(m_rig->edit("Label", "right", Qt::Key_Return));
    QTRY_VERIFY(m_label->isWaitedFor());
    QCOMPARE(m_rig->value("Label"), QString("right"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Up); // the window goes on
    QCOMPARE(m_rig->view().currentIndex().data().toString(), QString("Gain"));
    m_label->release();
    QTRY_COMPARE(m_label->sets(), QStringList{"right"});
    QTRY_COMPARE(m_rig->value("Label"), QString("right"));
}

QTEST_MAIN(FeatureEditingTest)
#include "FeatureEditingTest.moc"
