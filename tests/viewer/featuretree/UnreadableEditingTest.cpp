// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"
#include "plugins/featuretree/CChoiceEdit.h"

#include <QAbstractItemView>
#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// Changing features whose value cannot be read, in the panel.
class UnreadableEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEntryIsPickedInPlaceOfAValueThatCannotBeRead();
    void testFirstEntryIsNotTakenForAChoice_data();
    void testFirstEntryIsNotTakenForAChoice();
    void testNumberIsTypedInPlaceOfOneThatCannotBeRead();

private:
    QScopedPointer<CPanelRig> m_rig;
    QSharedPointer<CLiveInteger> m_width;
    QSharedPointer<CLiveEnumeration> m_format;
};

void UnreadableEditingTest::init()
{
    m_rig.reset(new CPanelRig);
    m_rig->features.addCategory("Control", "Control");
    m_width = m_rig->features.add<CLiveInteger>("Width", InterfaceInteger, "16");
    m_format = m_rig->features.add<CLiveEnumeration>("Format", InterfaceEnumeration, "Mono8");
    m_format->change([](CLiveState &state) {
        state.entries = QStringList{"Mono8", "Mono16", "RGB8"};
    });
}

void UnreadableEditingTest::cleanup()
{
    m_format.reset();
    m_width.reset();
    m_rig.reset();
}

void UnreadableEditingTest::testEntryIsPickedInPlaceOfAValueThatCannotBeRead()
{
    const QString reason = "its value 7 is no entry: set it to one of Mono8, Mono16, RGB8";
    m_format->change(
        [&](CLiveState &state) { state.readRefusal = "@CameraDevice/Format: " + reason; });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Format"));
    QCOMPARE(m_rig->value("Format"), QString("not readable"));
    QVERIFY(m_rig->row("Format").data(Qt::ToolTipRole).toString().contains("Format: " + reason));
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    auto *choice = qobject_cast<CChoiceEdit *>(m_rig->editor());
    QVERIFY(choice);
    QCOMPARE(choice->currentIndex(), -1);
    QTRY_VERIFY(choice->view()->isVisible());
    QTest::keyClick(choice->view(), Qt::Key_End);
    QTest::keyClick(choice->view(), Qt::Key_Return);
    QTRY_COMPARE(m_format->sets(), QStringList{"RGB8"});
    m_format->change([](CLiveState &state) { state.readRefusal.clear(); });
    QTRY_COMPARE(m_rig->value("Format"), QString("RGB8"));
}

void UnreadableEditingTest::testFirstEntryIsNotTakenForAChoice_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("readRefusal");
    QTest::newRow("a value that cannot be read") << ""
                                                 << "broken";
    QTest::newRow("a value that cannot be chosen now") << "Mono10"
                                                       << "";
}

// The view commits what the editor shows when the user goes on to the next row.
void UnreadableEditingTest::testFirstEntryIsNotTakenForAChoice()
{
    QFETCH(QString, text);
    QFETCH(QString, readRefusal);
    m_format->change([&](CLiveState &state) {
        state.text = text;
        state.readRefusal = readRefusal;
    });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->goTo("Format"));
    QSignalSpy wanted(&m_rig->panel().controller().model(), &CFeatureModel::changeWanted);
    QTest::keyClick(&m_rig->view(), Qt::Key_Return);
    QVERIFY(qobject_cast<CChoiceEdit *>(m_rig->editor()));
    QTest::keyClick(m_rig->editor(), Qt::Key_Tab);
    QTRY_VERIFY(!qobject_cast<CChoiceEdit *>(m_rig->editor()));
    QCOMPARE(wanted.size(), 0);
}

void UnreadableEditingTest::testNumberIsTypedInPlaceOfOneThatCannotBeRead()
{
    m_width->change([](CLiveState &state) { state.readRefusal = "broken"; });
    QVERIFY(m_rig->open());
    QVERIFY(m_rig->edit("Width", "64", Qt::Key_Return));
    QTRY_COMPARE(m_width->sets(), QStringList{"64"});
}

QTEST_MAIN(UnreadableEditingTest)
#include "UnreadableEditingTest.moc"
