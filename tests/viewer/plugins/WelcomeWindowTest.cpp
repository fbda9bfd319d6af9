// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "WelcomeWindowFixture.h"

#include <QLabel>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>

class WelcomeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_screen = std::make_unique<WelcomeWindowFixture>();
    }
    void cleanup()
    {
        m_screen.reset();
    }

    void testWindowIsThereWhileTheScreenIsVisible();
    void testScreenThatIsVisibleAlreadyGetsItsWindow();
    void testEachTabHasItsCaption();
    void testCaptionFollowsTheTab();
    void testPageOfTheCurrentTabIsShown();
    void testClickOnATabMakesItCurrent();
    void testPageIsLoadedOnceAndOnlyWhenItIsSeen();
    void testTabThatIsGoneTakesItsPageAlong();
    void testPageHasTheSizeOfTheWindow();
    void testPageBeginsWithASize_data();
    void testPageBeginsWithASize();
    void testWindowIsNotLargerThanTheScreen();
    void testWindowStandsOverItsParent_data();
    void testWindowStandsOverItsParent();
    void testPageScrollsToWhereTheKeyboardIs();
    void testPageThatCannotBeLoadedShowsWhy();
    void testTabKeyWalksThroughThePageAndOut_data();
    void testTabKeyWalksThroughThePageAndOut();
    void testArrowKeysChangeTheTab();

private:
    std::unique_ptr<WelcomeWindowFixture> m_screen;
};

void WelcomeWindowTest::testWindowIsThereWhileTheScreenIsVisible()
{
    m_screen->makeWindow();
    QVERIFY(!m_screen->window->isVisible());
    m_screen->controller.show();
    QVERIFY(m_screen->window->isVisible());
    m_screen->controller.close();
    QVERIFY(!m_screen->window->isVisible());
}

void WelcomeWindowTest::testScreenThatIsVisibleAlreadyGetsItsWindow()
{
    m_screen->controller.show();
    m_screen->makeWindow();
    QVERIFY(m_screen->window->isVisible());
}

void WelcomeWindowTest::testEachTabHasItsCaption()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab tips(WelcomeWindowFixture::emptyPage, "Tips");
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    m_screen->controller.addTab(&tips);
    QCOMPARE(m_screen->tabBar()->count(), 2);
    QCOMPARE(m_screen->tabBar()->tabText(0), QStringLiteral("News"));
    QCOMPARE(m_screen->tabBar()->tabText(1), QStringLiteral("Tips"));
}

void WelcomeWindowTest::testCaptionFollowsTheTab()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab tips(WelcomeWindowFixture::emptyPage, "Tips");
    m_screen->controller.addTab(&news);
    m_screen->controller.addTab(&tips);
    m_screen->makeWindow();
    tips.rename(QStringLiteral("Hints"));
    QCOMPARE(m_screen->tabBar()->tabText(0), QStringLiteral("News"));
    QCOMPARE(m_screen->tabBar()->tabText(1), QStringLiteral("Hints"));
}

void WelcomeWindowTest::testPageOfTheCurrentTabIsShown()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab tips(WelcomeWindowFixture::pageOfThree, "Tips");
    m_screen->controller.addTab(&news);
    m_screen->controller.addTab(&tips);
    m_screen->makeWindow();
    m_screen->controller.show();
    QVERIFY(!m_screen->page()->quickWindow()->contentItem()->findChild<QQuickItem *>("a"));
    QVERIFY(m_screen->controller.showTab(&tips));
    QCOMPARE(m_screen->tabBar()->currentIndex(), 1);
    QCOMPARE(
        m_screen->page()->quickWindow()->contentItem()->childItems().at(0)->childItems().size(), 3);
}

void WelcomeWindowTest::testClickOnATabMakesItCurrent()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab tips(WelcomeWindowFixture::pageOfThree, "Tips");
    m_screen->controller.addTab(&news);
    m_screen->controller.addTab(&tips);
    m_screen->makeWindow();
    m_screen->controller.show();
    QTest::mouseClick(m_screen->tabBar(), Qt::LeftButton, {},
                      m_screen->tabBar()->tabRect(1).center());
    QCOMPARE(m_screen->controller.currentTab(), &tips);
    QCOMPARE(
        m_screen->page()->quickWindow()->contentItem()->childItems().at(0)->childItems().size(), 3);
}

void WelcomeWindowTest::testPageIsLoadedOnceAndOnlyWhenItIsSeen()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab tips(WelcomeWindowFixture::emptyPage, "Tips");
    m_screen->controller.addTab(&news);
    m_screen->controller.addTab(&tips);
    m_screen->makeWindow();
    QCOMPARE(news.setUpCount(), 0);
    m_screen->controller.show();
    QCOMPARE(news.setUpCount(), 1);
    QCOMPARE(tips.setUpCount(), 0);
    m_screen->controller.close();
    m_screen->controller.show();
    m_screen->controller.setCurrentIndex(1);
    m_screen->controller.setCurrentIndex(0);
    QCOMPARE(news.setUpCount(), 1);
    QCOMPARE(tips.setUpCount(), 1);
}

void WelcomeWindowTest::testTabThatIsGoneTakesItsPageAlong()
{
    CPageTab news(WelcomeWindowFixture::pageOfThree, "News");
    auto tips = std::make_unique<CPageTab>(WelcomeWindowFixture::emptyPage, "Tips");
    m_screen->controller.addTab(tips.get());
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    m_screen->controller.show();
    const QPointer<QWidget> former(m_screen->page());
    tips.reset();
    QVERIFY(!former);
    QCOMPARE(m_screen->tabBar()->count(), 1);
    QCOMPARE(m_screen->tabBar()->tabText(0), QStringLiteral("News"));
    QVERIFY(m_screen->page());
    QCOMPARE(
        m_screen->page()->quickWindow()->contentItem()->childItems().at(0)->childItems().size(), 3);
}

void WelcomeWindowTest::testPageHasTheSizeOfTheWindow()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    m_screen->controller.show();
    const auto *item = m_screen->page()->quickWindow()->contentItem()->childItems().at(0);
    const QSize around = m_screen->window->size() - QSize(400, 300);
    QCOMPARE(QSizeF(item->width(), item->height()), QSizeF(400, 300));
    m_screen->window->resize(around + QSize(700, 450));
    QCOMPARE(QSizeF(item->width(), item->height()), QSizeF(700, 450));
    // It scrolls rather than losing a part.
    m_screen->window->resize(around + QSize(300, 200));
    QCOMPARE(QSizeF(item->width(), item->height()), QSizeF(400, 300));
}

void WelcomeWindowTest::testPageBeginsWithASize_data()
{
    QTest::addColumn<QString>("properties");
    QTest::addColumn<QSize>("size");

    QTest::newRow("the implicit one")
        << "implicitWidth: 500; implicitHeight: 350" << QSize(500, 350);
    QTest::newRow("the implicit one before the other")
        << "implicitWidth: 500; implicitHeight: 350; width: 80; height: 90" << QSize(500, 350);
    QTest::newRow("its own without an implicit one")
        << "width: 450; height: 320" << QSize(450, 320);
    QTest::newRow("a usual one without any") << "" << QSize(640, 400);
    QTest::newRow("a usual height for a page that only has a width")
        << "implicitWidth: 500" << QSize(500, 400);
}

void WelcomeWindowTest::testPageBeginsWithASize()
{
    QFETCH(QString, properties);
    CPageTab tab("import QtQuick 2.12\nItem { " + properties + " }");
    m_screen->controller.addTab(&tab);
    m_screen->makeWindow();
    m_screen->controller.show();
    const auto *item = m_screen->page()->quickWindow()->contentItem()->childItems().at(0);
    QTEST(QSizeF(item->width(), item->height()).toSize(), "size");
}

// The screen of this test has 800 x 800 pixels.
void WelcomeWindowTest::testWindowIsNotLargerThanTheScreen()
{
    CPageTab news(QStringLiteral("import QtQuick 2.12\nItem { implicitWidth: 700; "
                                 "implicitHeight: 3000 }"));
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    m_screen->controller.show();
    QVERIFY(m_screen->window->height() < 800);
    const auto *view = m_screen->window->findChild<QScrollArea *>();
    QVERIFY(view->verticalScrollBar()->maximum() > 0);
    QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
}

// On a screen of 800 pixels each way, with a page of 400 x 300.
void WelcomeWindowTest::testWindowStandsOverItsParent_data()
{
    QTest::addColumn<QRect>("parent");
    QTest::addColumn<QPoint>("offMiddle");

    QTest::newRow("in its middle") << QRect(100, 60, 600, 500) << QPoint(0, 0);
    QTest::newRow("but not beyond the screen, up and to the left")
        << QRect(0, 0, 200, 100) << QPoint(1, 1);
    QTest::newRow("nor down and to the right") << QRect(600, 500, 200, 100) << QPoint(-1, -1);
}

void WelcomeWindowTest::testWindowStandsOverItsParent()
{
    QFETCH(QRect, parent);
    QWidget main;
    main.setGeometry(parent);
    main.show();
    CPageTab page(WelcomeWindowFixture::emptyPage);
    m_screen->controller.addTab(&page);
    m_screen->makeWindow(&main);
    const auto beforeItsParent = qScopeGuard([this] { m_screen->window.reset(); });
    m_screen->controller.show();
    const QRect place = m_screen->window->frameGeometry();
    QVERIFY(m_screen->window->screen()->availableGeometry().contains(place));
    const QPoint off = place.center() - main.frameGeometry().center();
    const auto sign = [](int value) { return value < -1 ? -1 : value > 1 ? 1 : 0; };
    QTEST(QPoint(sign(off.x()), sign(off.y())), "offMiddle");
}

void WelcomeWindowTest::testPageScrollsToWhereTheKeyboardIs()
{
    CPageTab news(QStringLiteral("import QtQuick 2.12\nItem { implicitWidth: 700; "
                                 "implicitHeight: 3000\n"
                                 "Item { y: 2500; width: 50; height: 100; activeFocusOnTab: true; "
                                 "objectName: \"a\" } }"));
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    m_screen->controller.show();
    QVERIFY(QTest::qWaitForWindowActive(m_screen->window.get()));
    auto *view = m_screen->window->findChild<QScrollArea *>();
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_screen->stop(), QStringLiteral("a"));
    const int top = view->verticalScrollBar()->value();
    QVERIFY(top <= 2500 && top + view->viewport()->height() >= 2600);
}

void WelcomeWindowTest::testPageThatCannotBeLoadedShowsWhy()
{
    CPageTab news(QStringLiteral("import QtQuick 2.12\nItem {"), "News");
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("^The page \"News\" cannot be shown: .*Page.qml:2"));
    m_screen->controller.show();
    QVERIFY(!m_screen->page());
    const auto *error = m_screen->window->findChild<QLabel *>(QStringLiteral("error"));
    QVERIFY(error && error->isVisible());
    QVERIFY(error->text().startsWith("The page \"News\" cannot be shown: "));
}

void WelcomeWindowTest::testTabKeyWalksThroughThePageAndOut_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("stops");
    QTest::newRow("Tab") << int(Qt::Key_Tab) << QStringList{"a", "b", "c", "tabs", "a"};
    QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab) << QStringList{"c", "b", "a", "tabs", "c"};
}

void WelcomeWindowTest::testTabKeyWalksThroughThePageAndOut()
{
    QFETCH(int, key);
    QFETCH(QStringList, stops);
    CPageTab tab(WelcomeWindowFixture::pageOfThree, "Tips");
    m_screen->controller.addTab(&tab);
    m_screen->makeWindow();
    m_screen->controller.show();
    QVERIFY(QTest::qWaitForWindowActive(m_screen->window.get()));
    QVERIFY(m_screen->page()->hasFocus());
    QStringList walked;
    for (int i = 0; i < stops.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        walked.append(m_screen->stop());
    }
    QCOMPARE(walked, stops);
}

void WelcomeWindowTest::testArrowKeysChangeTheTab()
{
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab tips(WelcomeWindowFixture::pageOfThree, "Tips");
    m_screen->controller.addTab(&news);
    m_screen->controller.addTab(&tips);
    m_screen->makeWindow();
    m_screen->controller.show();
    QVERIFY(QTest::qWaitForWindowActive(m_screen->window.get()));
    m_screen->tabBar()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QCOMPARE(m_screen->controller.currentIndex(), 1);
    QVERIFY(m_screen->tabBar()->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(m_screen->stop(), QStringLiteral("a"));
}

QTEST_MAIN(WelcomeWindowTest)

#include "WelcomeWindowTest.moc"
