// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CFeatureRig.h"
#include "plugins/featuretree/CFeatureAccess.h"

#include <QSignalSpy>
#include <QTest>

using namespace FeatureTree;
using namespace ParameterCollection;

// Features are read and set in another thread, one at a time.
class FeatureAccessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testDeviceIsAskedInAnotherThreadOnly();
    void testDeviceThatHasNoFeaturesIsTold();
    void testReasonWhyNothingCanBeReadIsTold();
    void testStateTellsWhatAnEditorNeeds();
    void testEmptyTextIsAValue();
    void testValueThatCannotBeReadIsTold();
    void testValueIsSetOnceAndBeforeWhatIsStillToBeRead();
    void testRefusalIsTold();
    void testClosingEndsAllAtOnceAlsoWithADeviceThatDoesNotAnswer();
    void testChangeBySomebodyElseIsTold();
    void testReadingIsNoChange();

private:
    void open();

    QScopedPointer<CFeatureRig> m_rig;
    QScopedPointer<CFeatureAccess> m_access;
    QSharedPointer<CLiveInteger> m_width;
    QSharedPointer<CLiveText> m_label;
};

void FeatureAccessTest::init()
{
    m_rig.reset(new CFeatureRig);
    m_rig->addCategory("Control", "Control");
    m_width = m_rig->add<CLiveInteger>("Width", InterfaceInteger, "640");
    m_label = m_rig->add<CLiveText>("Label", InterfaceString, "left");
    m_access.reset(new CFeatureAccess);
}

void FeatureAccessTest::cleanup()
{
    m_access.reset();
    m_rig.reset();
}

void FeatureAccessTest::open()
{
    QSignalSpy described(m_access.data(), &CFeatureAccess::described);
    m_access->open([collection = m_rig->collection] { return collection; });
    QVERIFY(described.wait());
    QCOMPARE(described.first().first().value<QVector<CFeatureDescription>>().size(), 3);
}

void FeatureAccessTest::testDeviceIsAskedInAnotherThreadOnly()
{
    open();
    QSignalSpy allRead(m_access.data(), &CFeatureAccess::allRead);
    QSignalSpy written(m_access.data(), &CFeatureAccess::written);
    m_access->read({1, 2});
    QVERIFY(allRead.wait());
    m_access->write(1, "12");
    QVERIFY(written.wait());
    QVERIFY(!m_width->wasUsedIn(QThread::currentThread()));
    QVERIFY(!m_label->wasUsedIn(QThread::currentThread()));
    QCOMPARE(m_width->sets(), QStringList{"12"});
}

void FeatureAccessTest::testDeviceThatHasNoFeaturesIsTold()
{
    QSignalSpy notDescribed(m_access.data(), &CFeatureAccess::notDescribed);
    m_access->open([] { return CFeatureAccess::CollectionPtr(); });
    QVERIFY(notDescribed.wait());
    QCOMPARE(notDescribed.first().first().toString(), QString());
}

void FeatureAccessTest::testReasonWhyNothingCanBeReadIsTold()
{
    m_rig->collection->listThrows = true;
    QSignalSpy notDescribed(m_access.data(), &CFeatureAccess::notDescribed);
    m_access->open([collection = m_rig->collection] { return collection; });
    QVERIFY(notDescribed.wait());
    QCOMPARE(notDescribed.first().first().toString(), QString("parameters failed"));
}

void FeatureAccessTest::testStateTellsWhatAnEditorNeeds()
{
    m_width->change([](CLiveState &state) {
        state.minimum = 16;
        state.maximum = 2048;
        state.increment = 4;
    });
    open();
    QSignalSpy stateRead(m_access.data(), &CFeatureAccess::stateRead);
    m_access->read({1});
    QVERIFY(stateRead.wait());
    QCOMPARE(stateRead.first().first().toInt(), 1);
    const auto state = stateRead.first().last().value<CFeatureState>();
    QVERIFY(state.isKnown && state.canBeSet());
    QCOMPARE(state.text, QString("640"));
    QVERIFY((state.integerLimits == CIntegerLimits{16, 2048, 4}));
}

void FeatureAccessTest::testEmptyTextIsAValue()
{
    m_label->change([](CLiveState &state) { state.text = QString(); });
    open();
    QSignalSpy stateRead(m_access.data(), &CFeatureAccess::stateRead);
    m_access->read({2});
    QVERIFY(stateRead.wait());
    QVERIFY(!stateRead.first().last().value<CFeatureState>().text.isNull());
}

void FeatureAccessTest::testValueThatCannotBeReadIsTold()
{
    m_width->change([](CLiveState &state) { state.readRefusal = "no answer"; });
    open();
    QSignalSpy stateRead(m_access.data(), &CFeatureAccess::stateRead);
    m_access->read({1});
    QVERIFY(stateRead.wait());
    const auto state = stateRead.first().last().value<CFeatureState>();
    QCOMPARE(state.failure, QString("no answer"));
    QVERIFY(state.text.isNull());
}

void FeatureAccessTest::testValueIsSetOnceAndBeforeWhatIsStillToBeRead()
{
    open();
    QSignalSpy stateRead(m_access.data(), &CFeatureAccess::stateRead);
    QSignalSpy allRead(m_access.data(), &CFeatureAccess::allRead);
    m_width->hold();
    m_access->read({1, 2});
    QTRY_VERIFY(m_width->isWaitedFor());
    m_access->write(2, "right");
    m_width->release();
    QVERIFY(allRead.wait());
    QCOMPARE(m_label->sets(), QStringList{"right"});
    QCOMPARE(stateRead.size(), 2);
    QCOMPARE(stateRead.last().last().value<CFeatureState>().text, QString("right"));
}

void FeatureAccessTest::testRefusalIsTold()
{
    m_label->change([](CLiveState &state) { state.setRefusal = "too long"; });
    open();
    QSignalSpy written(m_access.data(), &CFeatureAccess::written);
    m_access->write(2, "x");
    QVERIFY(written.wait());
    QCOMPARE(written.first(), (QVariantList{2, QString("too long")}));
}

void FeatureAccessTest::testClosingEndsAllAtOnceAlsoWithADeviceThatDoesNotAnswer()
{
    open();
    QSignalSpy stateRead(m_access.data(), &CFeatureAccess::stateRead);
    QSignalSpy written(m_access.data(), &CFeatureAccess::written);
    m_width->hold();
    m_access->read({1, 2});
    QTRY_VERIFY(m_width->isWaitedFor());
    m_access->write(2, "dropped");
    m_access->close();
    QVERIFY(m_width->isWaitedFor()); // it still does not answer
    QVERIFY(!m_access->parameter(1));
    m_width->release();
    open(); // after whatever the first one left behind
    QCOMPARE(stateRead.size(), 0);
    QCOMPARE(written.size(), 0);
    QCOMPARE(m_label->sets(), QStringList());
}

void FeatureAccessTest::testChangeBySomebodyElseIsTold()
{
    open();
    QSignalSpy setBySomebody(m_access.data(), &CFeatureAccess::setBySomebody);
    m_label->setValueText("other");
    QVERIFY(setBySomebody.wait());
    QCOMPARE(setBySomebody.first().first().toInt(), 2);
    m_access->close();
    m_label->setValueText("more");
    QCoreApplication::processEvents();
    QCOMPARE(setBySomebody.size(), 1);
}

void FeatureAccessTest::testReadingIsNoChange()
{
    open();
    QSignalSpy told(m_label.data(), &IParameter::parameterValueAboutToBeSet);
    QSignalSpy allRead(m_access.data(), &CFeatureAccess::allRead);
    m_access->read({1, 2});
    QVERIFY(allRead.wait());
    QCOMPARE(told.size(), 0);
    QCOMPARE(m_label->reads(), 1);
}

QTEST_GUILESS_MAIN(FeatureAccessTest)
#include "FeatureAccessTest.moc"
