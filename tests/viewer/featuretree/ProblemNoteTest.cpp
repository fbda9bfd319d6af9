// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CPanelRig.h"

#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// How long the note about a refused value stands, and that it hides nothing.
class ProblemNoteTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testRowStaysInSight_data();
    void testRowStaysInSight();
    void testRowThatIsNoLongerCurrentStaysInSight();
    void testAnotherFeatureEndsIt_data();
    void testAnotherFeatureEndsIt();
    void testScriptThatSelectsAnotherFeatureEndsIt();
    void testEscapeEndsIt();
    void testEscapeInTheEditorEndsIt();
    void testSameValueEndsIt();
    void testLaterSetThatSucceedsEndsIt();
    void testClickReachesItsRowAlthoughTheNoteGoes();

private:
    bool refuse(const char *name);
    QModelIndex lastInSight() const;
    bool isInSight(const QModelIndex &row) const;
    QPoint valueOf(const char *name) const;

    QScopedPointer<CPanelRig> m_rig;
    QVector<QSharedPointer<CLiveInteger>> m_many;
    QSharedPointer<CLiveText> m_reset;
};

void ProblemNoteTest::init()
{
    m_rig.reset(new CPanelRig);
    m_many.clear();
    m_rig->features.addCategory("Control", "Control");
    for (int i = 0; i < 40; ++i) {
        const QByteArray name = "Many" + QByteArray::number(i);
        m_many.append(m_rig->features.add<CLiveInteger>(name.constData(), InterfaceInteger, "5"));
        m_many.last()->change([](CLiveState &state) { state.setRefusal = "out of range"; });
    }
    m_reset = m_rig->features.add<CLiveText>("Reset", InterfaceCommand, "");
    m_reset->change([](CLiveState &state) { state.mode = AccessWriteOnly; });
    QVERIFY(m_rig->open());
}

void ProblemNoteTest::cleanup()
{
    for (const auto &feature : qAsConst(m_many)) {
        feature->release();
    }
    m_reset->release();
    m_rig.reset();
}

bool ProblemNoteTest::refuse(const char *name)
{
    return m_rig->edit(name, "7", Qt::Key_Return)
           && QTest::qWaitFor([this] { return m_rig->problem() == "out of range"; });
}

QModelIndex ProblemNoteTest::lastInSight() const
{
    const CFeatureView &view = m_rig->view();
    QModelIndex row = m_rig->row("Many0");
    while (view.visualRect(view.indexBelow(row)).bottom() < view.viewport()->height()) {
        row = view.indexBelow(row);
    }
    return row;
}

bool ProblemNoteTest::isInSight(const QModelIndex &row) const
{
    const QRect rect = m_rig->view().visualRect(row);
    return rect.isValid() && m_rig->view().viewport()->rect().contains(rect.center());
}

QPoint ProblemNoteTest::valueOf(const char *name) const
{
    return m_rig->view().visualRect(m_rig->row(name).siblingAtColumn(1)).center();
}

void ProblemNoteTest::testRowStaysInSight_data()
{
    QTest::addColumn<int>("place"); // of the row, counted from the bottom of the view
    QTest::newRow("the last row in sight") << 0;
    QTest::newRow("the last but one") << 1;
}

void ProblemNoteTest::testRowStaysInSight()
{
    QFETCH(int, place);
    CFeatureView &view = m_rig->view();
    QModelIndex row = lastInSight();
    for (int i = 0; i < place; ++i) {
        row = view.indexAbove(row);
    }
    const QPersistentModelIndex kept = row;
    const int height = view.viewport()->height();
    QVERIFY(refuse(row.data(CFeatureModel::NameRole).toByteArray().constData()));
    QTRY_VERIFY(view.viewport()->height() < height);
    QVERIFY(view.viewport()->rect().contains(view.visualRect(kept)));
}

void ProblemNoteTest::testRowThatIsNoLongerCurrentStaysInSight()
{
    const QPersistentModelIndex row = lastInSight();
    const int feature = row.data(CFeatureModel::FeatureRole).toInt();
    CLiveInteger &slow = *m_many.at(feature - 1);
    QVERIFY(m_rig->goTo(slow.name().toLatin1().constData()));
    slow.hold();
    m_rig->view().model()->setData(row.sibling(row.row(), 1), "7", Qt::EditRole);
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(&m_rig->view(), Qt::Key_Up);
    }
    slow.release();
    QTRY_COMPARE(m_rig->problem(), QString("out of range"));
    QVERIFY(m_rig->view().viewport()->rect().contains(m_rig->view().visualRect(row)));
}

void ProblemNoteTest::testAnotherFeatureEndsIt_data()
{
    QTest::addColumn<bool>("isMouse");
    QTest::newRow("by the arrow keys") << false;
    QTest::newRow("by the mouse") << true;
}

void ProblemNoteTest::testAnotherFeatureEndsIt()
{
    QFETCH(bool, isMouse);
    QVERIFY(refuse("Many1"));
    if (isMouse) {
        const QRect other = m_rig->view().visualRect(m_rig->row("Many2"));
        QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {}, other.center());
    } else {
        QTest::keyClick(&m_rig->view(), Qt::Key_Down);
    }
    QCOMPARE(m_rig->problem(), QString());
}

void ProblemNoteTest::testScriptThatSelectsAnotherFeatureEndsIt()
{
    QVERIFY(refuse("Many1"));
    m_rig->features.featureSelection->select(m_many.at(1));
    QCOMPARE(m_rig->problem(), QString("out of range"));
    m_rig->features.featureSelection->select(m_many.at(2));
    QCOMPARE(m_rig->problem(), QString());
}

void ProblemNoteTest::testEscapeEndsIt()
{
    QVERIFY(refuse("Many1"));
    QTest::keyClick(&m_rig->view(), Qt::Key_Escape);
    QCOMPARE(m_rig->problem(), QString());
    QVERIFY(m_rig->panel().isVisible());
}

void ProblemNoteTest::testEscapeInTheEditorEndsIt()
{
    QVERIFY(refuse("Many1"));
    QTest::keyClick(&m_rig->view(), Qt::Key_F2);
    QVERIFY(m_rig->editor());
    QCOMPARE(m_rig->problem(), QString("out of range")); // it says what can be typed
    QTest::keyClick(m_rig->editor(), Qt::Key_Escape);
    QTRY_COMPARE(m_rig->problem(), QString());
}

void ProblemNoteTest::testSameValueEndsIt()
{
    QVERIFY(refuse("Many1"));
    QVERIFY(m_rig->edit("Many1", "5", Qt::Key_Return));
    QCOMPARE(m_rig->problem(), QString());
}

void ProblemNoteTest::testLaterSetThatSucceedsEndsIt()
{
    QVERIFY(m_rig->goTo("Reset") && m_rig->goTo("Many0"));
    m_reset->hold();
    CFeatureModel &model = m_rig->panel().controller().model();
    model.setData(model.indexOf(1, CFeatureModel::ValueColumn), "7", Qt::EditRole);
    model.setData(model.indexOf(41, CFeatureModel::ValueColumn), "Execute", Qt::EditRole);
    QTRY_COMPARE(m_rig->problem(), QString("out of range"));
    m_reset->release();
    QTRY_COMPARE(m_rig->problem(), QString());
    QCOMPARE(m_reset->sets(), QStringList{"Execute"});
}

// At the end of the tree, the rows move down when the view becomes higher.
void ProblemNoteTest::testClickReachesItsRowAlthoughTheNoteGoes()
{
    m_rig->view().scrollToBottom();
    QVERIFY(refuse("Many39"));
    m_rig->view().scrollToBottom();
    QVERIFY(isInSight(m_rig->row("Reset")));
    const int before = valueOf("Reset").y();
    QTest::mouseClick(m_rig->view().viewport(), Qt::LeftButton, {}, valueOf("Reset"));
    QTRY_COMPARE(m_reset->sets(), QStringList{"Execute"});
    QTRY_COMPARE(m_rig->problem(), QString());
    QTRY_VERIFY(valueOf("Reset").y() > before);
}

QTEST_MAIN(ProblemNoteTest)
#include "ProblemNoteTest.moc"
