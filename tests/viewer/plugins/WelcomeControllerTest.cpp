// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestTab.h"

#include <QSignalSpy>
#include <QTest>

using Plugin::NerixWelcome::CNerixWelcomeController;

class WelcomeControllerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testBeginsHiddenWithoutTabs();
    void testFirstTabIsCurrent();
    void testNullTabIsIgnored();
    void testTabAddedTwiceIsThereOnce();

    void testDestroyedTabDisappears();
    void testCurrentTabStaysWhenAnEarlierOneDisappears();
    void testNeighbourIsCurrentWhenTheLastTabDisappears();
    void testNoTabIsCurrentWhenTheOnlyOneDisappears();

    void testApplyIsNeededWhileAnyTabNeedsIt();
    void testApplyNeedGoesWithItsTab();
    void testApplyNeedIsAnnouncedOnlyWhenItChanges();

    void testStart_data();
    void testStart();
    void testStartShowsNothingWithoutTabs();
    void testStartGoesToTheTabWithTheQuestion();

    void testCloseHidesTheScreen();
    void testCloseIsRefusedWhileAnAnswerIsNeeded();
    void testCloseButtonOfAPageClosesLikewise();

    void testShowTabBringsUpThatTab();
    void testShowTabOfAnUnknownTabBringsUpNothing();

    void testIndexWithoutATabIsIgnored_data();
    void testIndexWithoutATabIsIgnored();

    void testShowAtStartupIsTrueUnlessChosenOtherwise();
    void testShowAtStartupIsKeptInTheSettings();

private:
    QScopedPointer<CSettingsSandbox> m_sandbox;
    QScopedPointer<CNerixWelcomeController> m_controller;
};

void WelcomeControllerTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
    m_controller.reset(new CNerixWelcomeController);
}

void WelcomeControllerTest::cleanup()
{
    m_controller.reset();
    m_sandbox.reset();
}

void WelcomeControllerTest::testBeginsHiddenWithoutTabs()
{
    QVERIFY(m_controller->tabs().isEmpty());
    QVERIFY(!m_controller->isVisible());
    QVERIFY(!m_controller->applyFromTabsIsNeeded());
    QCOMPARE(m_controller->currentIndex(), -1);
    QVERIFY(!m_controller->currentTab());
}

void WelcomeControllerTest::testFirstTabIsCurrent()
{
    CTestTab first;
    CTestTab second;
    const QSignalSpy tabsChanged(m_controller.data(), &CNerixWelcomeController::tabsChanged);
    m_controller->addTab(&first);
    m_controller->addTab(&second);
    QCOMPARE(m_controller->tabObjects(), QList<QObject *>({&first, &second}));
    QCOMPARE(m_controller->currentTab(), &first);
    QCOMPARE(tabsChanged.count(), 2);
}

void WelcomeControllerTest::testNullTabIsIgnored()
{
    const QSignalSpy tabsChanged(m_controller.data(), &CNerixWelcomeController::tabsChanged);
    m_controller->addTab(nullptr);
    QVERIFY(m_controller->tabs().isEmpty());
    QCOMPARE(tabsChanged.count(), 0);
}

void WelcomeControllerTest::testTabAddedTwiceIsThereOnce()
{
    CTestTab tab;
    m_controller->addTab(&tab);
    m_controller->addTab(&tab);
    QCOMPARE(m_controller->tabs().size(), 1);
}

void WelcomeControllerTest::testDestroyedTabDisappears()
{
    CTestTab stays;
    {
        CTestTab goes;
        m_controller->addTab(&goes);
        m_controller->addTab(&stays);
    }
    QCOMPARE(m_controller->tabObjects(), QList<QObject *>({&stays}));
    QCOMPARE(m_controller->currentTab(), &stays);
}

void WelcomeControllerTest::testCurrentTabStaysWhenAnEarlierOneDisappears()
{
    auto earlier = std::make_unique<CTestTab>();
    CTestTab current;
    CTestTab later;
    m_controller->addTab(earlier.get());
    m_controller->addTab(&current);
    m_controller->addTab(&later);
    m_controller->setCurrentIndex(1);
    earlier.reset();
    QCOMPARE(m_controller->currentTab(), &current);
    QCOMPARE(m_controller->currentIndex(), 0);
}

void WelcomeControllerTest::testNeighbourIsCurrentWhenTheLastTabDisappears()
{
    CTestTab neighbour;
    auto last = std::make_unique<CTestTab>();
    m_controller->addTab(&neighbour);
    m_controller->addTab(last.get());
    m_controller->setCurrentIndex(1);
    last.reset();
    QCOMPARE(m_controller->currentTab(), &neighbour);
}

void WelcomeControllerTest::testNoTabIsCurrentWhenTheOnlyOneDisappears()
{
    auto only = std::make_unique<CTestTab>();
    m_controller->addTab(only.get());
    only.reset();
    QCOMPARE(m_controller->currentIndex(), -1);
    QVERIFY(!m_controller->currentTab());
}

void WelcomeControllerTest::testApplyIsNeededWhileAnyTabNeedsIt()
{
    CTestTab first("First", true);
    CTestTab second("Second", true);
    m_controller->addTab(&first);
    m_controller->addTab(&second);
    first.setApplyNeeded(false);
    QVERIFY(m_controller->applyFromTabsIsNeeded());
    second.setApplyNeeded(false);
    QVERIFY(!m_controller->applyFromTabsIsNeeded());
}

void WelcomeControllerTest::testApplyNeedGoesWithItsTab()
{
    {
        CTestTab tab("Tab", true);
        m_controller->addTab(&tab);
        QVERIFY(m_controller->applyFromTabsIsNeeded());
    }
    QVERIFY(!m_controller->applyFromTabsIsNeeded());
}

void WelcomeControllerTest::testApplyNeedIsAnnouncedOnlyWhenItChanges()
{
    CTestTab tab("Tab", true);
    const QSignalSpy changed(m_controller.data(),
                             &CNerixWelcomeController::applyFromTabsIsNeededChanged);
    m_controller->addTab(&tab);
    tab.setApplyNeeded(true);
    QCOMPARE(changed.count(), 1);
    tab.setApplyNeeded(false);
    QCOMPARE(changed.count(), 2);
}

void WelcomeControllerTest::testStart_data()
{
    QTest::addColumn<bool>("showAtStartup");
    QTest::addColumn<bool>("applyNeeded");
    QTest::addColumn<bool>("visible");

    QTest::newRow("shown because the user wants it at each start") << true << false << true;
    QTest::newRow("shown because a tab needs an answer") << false << true << true;
    QTest::newRow("shown for both reasons") << true << true << true;
    QTest::newRow("hidden without a reason") << false << false << false;
}

void WelcomeControllerTest::testStart()
{
    QFETCH(bool, showAtStartup);
    QFETCH(bool, applyNeeded);
    QFETCH(bool, visible);

    CTestTab tab("Tab", applyNeeded);
    m_controller->setShowAtStartup(showAtStartup);
    m_controller->addTab(&tab);
    m_controller->start();
    QCOMPARE(m_controller->isVisible(), visible);
}

void WelcomeControllerTest::testStartShowsNothingWithoutTabs()
{
    m_controller->start();
    QVERIFY(!m_controller->isVisible());
}

void WelcomeControllerTest::testStartGoesToTheTabWithTheQuestion()
{
    CTestTab news("News");
    CTestTab question("Question", true);
    m_controller->addTab(&news);
    m_controller->addTab(&question);
    m_controller->start();
    QCOMPARE(m_controller->currentTab(), &question);
}

void WelcomeControllerTest::testCloseHidesTheScreen()
{
    const QSignalSpy changed(m_controller.data(), &CNerixWelcomeController::visibleChanged);
    m_controller->show();
    QVERIFY(m_controller->close());
    QVERIFY(!m_controller->isVisible());
    QCOMPARE(changed.count(), 2);
}

void WelcomeControllerTest::testCloseIsRefusedWhileAnAnswerIsNeeded()
{
    CTestTab tab("Tab", true);
    m_controller->addTab(&tab);
    m_controller->start();
    QVERIFY(!m_controller->close());
    QVERIFY(m_controller->isVisible());
    tab.setApplyNeeded(false);
    QVERIFY(m_controller->close());
    QVERIFY(!m_controller->isVisible());
}

void WelcomeControllerTest::testCloseButtonOfAPageClosesLikewise()
{
    CTestTab tab("Tab", true);
    m_controller->addTab(&tab);
    m_controller->start();
    m_controller->onCloseNerixWelcomeClicked();
    QVERIFY(m_controller->isVisible());
    tab.setApplyNeeded(false);
    m_controller->onCloseNerixWelcomeClicked();
    QVERIFY(!m_controller->isVisible());
}

void WelcomeControllerTest::testShowTabBringsUpThatTab()
{
    CTestTab first;
    CTestTab second;
    m_controller->addTab(&first);
    m_controller->addTab(&second);
    QVERIFY(m_controller->showTab(&second));
    QVERIFY(m_controller->isVisible());
    QCOMPARE(m_controller->currentTab(), &second);
}

void WelcomeControllerTest::testShowTabOfAnUnknownTabBringsUpNothing()
{
    CTestTab known;
    CTestTab unknown;
    m_controller->addTab(&known);
    QVERIFY(!m_controller->showTab(&unknown));
    QVERIFY(!m_controller->showTab(nullptr));
    QVERIFY(!m_controller->isVisible());
}

void WelcomeControllerTest::testIndexWithoutATabIsIgnored_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("before the first") << -1;
    QTest::newRow("after the last") << 1;
}

void WelcomeControllerTest::testIndexWithoutATabIsIgnored()
{
    QFETCH(int, index);
    CTestTab tab;
    m_controller->addTab(&tab);
    m_controller->setCurrentIndex(index);
    QCOMPARE(m_controller->currentIndex(), 0);
}

void WelcomeControllerTest::testShowAtStartupIsTrueUnlessChosenOtherwise()
{
    QVERIFY(m_controller->showAtStartup());
}

void WelcomeControllerTest::testShowAtStartupIsKeptInTheSettings()
{
    const QSignalSpy changed(m_controller.data(), &CNerixWelcomeController::showAtStartupChanged);
    m_controller->setShowAtStartup(false);
    m_controller->setShowAtStartup(false);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(QSettings().value(QStringLiteral("NerixWelcome/ShowAtStartup")), QVariant(false));
    QVERIFY(!CNerixWelcomeController().showAtStartup());
}

QTEST_MAIN(WelcomeControllerTest)

#include "WelcomeControllerTest.moc"
