// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CPageWidget.h"
#include "plugins/nerixwelcome/CWelcomeWindow.h"
#include "support/CPageTab.h"
#include "support/CSettingsSandbox.h"

#include <memory>

#include <QLabel>
#include <QQuickItem>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <QTranslator>

using Plugin::NerixWelcome::CNerixWelcomeController;
using Plugin::NerixWelcome::CPageWidget;
using Plugin::NerixWelcome::CWelcomeWindow;

namespace {

const QString emptyPage = QStringLiteral("import QtQuick 2.12\nItem { implicitWidth: 400; "
                                         "implicitHeight: 300 }");

// Three places for the keyboard; the middle one writes down what it is told.
const QString pageOfThree =
    QStringLiteral("import QtQuick 2.12\n"
                   "Item {\n"
                   "    implicitWidth: 400; implicitHeight: 300\n"
                   "    Item { objectName: \"a\"; activeFocusOnTab: true }\n"
                   "    Item { objectName: \"b\"; activeFocusOnTab: true }\n"
                   "    Item { objectName: \"c\"; activeFocusOnTab: true }\n"
                   "}");

enum class Way { Escape, CloseBox, Accept, Controller };

// Every text of the window is "translated".
class CTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *, const char *, int) const override
    {
        const bool ours = qstrcmp(context, "Plugin::NerixWelcome::CWelcomeWindow") == 0;
        return ours ? QStringLiteral("translated %1") : QString();
    }
    bool isEmpty() const override
    {
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(Way)

class WelcomeWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testWindowIsThereWhileTheScreenIsVisible();
    void testScreenThatIsVisibleAlreadyGetsItsWindow();
    void testEachTabHasItsCaption();
    void testCaptionFollowsTheTab();
    void testPageOfTheCurrentTabIsShown();
    void testClickOnATabMakesItCurrent();
    void testPageIsLoadedOnceAndOnlyWhenItIsSeen();
    void testTabThatIsGoneTakesItsPageAlong();
    void testPageHasTheSizeOfTheWindow();
    void testWindowIsNotLargerThanTheScreen();
    void testPageScrollsToWhereTheKeyboardIs();
    void testPageThatCannotBeLoadedShowsWhy();

    void testWindowCloses_data();
    void testWindowCloses();
    void testWindowStaysWhileATabHoldsAQuestion_data();
    void testWindowStaysWhileATabHoldsAQuestion();
    void testWordWhyItStaysGoesWithTheQuestion();
    void testWindowBlocksTheOthersWhileATabHoldsAQuestion();
    void testQuestionThatComesLateBlocksTheOthersToo();
    void testSecondRequestBringsTheWindowBack();

    void testTabKeyWalksThroughThePageAndOut_data();
    void testTabKeyWalksThroughThePageAndOut();
    void testArrowKeysChangeTheTab();
    void testTextsFollowTheLanguage();

private:
    void makeWindow();
    void close(Way way);
    QTabBar *tabBar() const;
    QLabel *notice() const;
    CPageWidget *page() const;
    QString stop() const;

    std::unique_ptr<CSettingsSandbox> m_sandbox;
    std::unique_ptr<CNerixWelcomeController> m_controller;
    std::unique_ptr<CWelcomeWindow> m_window;
};

void WelcomeWindowTest::init()
{
    m_sandbox = std::make_unique<CSettingsSandbox>();
    m_controller = std::make_unique<CNerixWelcomeController>();
}

void WelcomeWindowTest::cleanup()
{
    m_window.reset();
    m_controller.reset();
    m_sandbox.reset();
}

void WelcomeWindowTest::makeWindow()
{
    m_window = std::make_unique<CWelcomeWindow>(*m_controller);
}

void WelcomeWindowTest::close(Way way)
{
    switch (way) {
    case Way::Escape:
        QTest::keyClick(m_window.get(), Qt::Key_Escape);
        break;
    case Way::CloseBox:
        m_window->close();
        break;
    case Way::Accept:
        m_window->accept();
        break;
    case Way::Controller:
        m_controller->onCloseNerixWelcomeClicked();
        break;
    }
}

QTabBar *WelcomeWindowTest::tabBar() const
{
    return m_window->findChild<QTabBar *>(QStringLiteral("tabs"));
}

QLabel *WelcomeWindowTest::notice() const
{
    return m_window->findChild<QLabel *>(QStringLiteral("notice"));
}

// The one that is seen.
CPageWidget *WelcomeWindowTest::page() const
{
    const auto *views = m_window->findChild<QStackedWidget *>();
    const QWidget *view = views->currentWidget();
    return view ? view->findChild<CPageWidget *>() : nullptr;
}

QString WelcomeWindowTest::stop() const
{
    if (tabBar()->hasFocus()) {
        return QStringLiteral("tabs");
    }
    const QQuickItem *item = page()->quickWindow()->activeFocusItem();
    return item ? item->objectName() : QString();
}

void WelcomeWindowTest::testWindowIsThereWhileTheScreenIsVisible()
{
    makeWindow();
    QVERIFY(!m_window->isVisible());
    m_controller->show();
    QVERIFY(m_window->isVisible());
    m_controller->close();
    QVERIFY(!m_window->isVisible());
}

void WelcomeWindowTest::testScreenThatIsVisibleAlreadyGetsItsWindow()
{
    m_controller->show();
    makeWindow();
    QVERIFY(m_window->isVisible());
}

void WelcomeWindowTest::testEachTabHasItsCaption()
{
    CPageTab news(emptyPage, "News");
    CPageTab tips(emptyPage, "Tips");
    m_controller->addTab(&news);
    makeWindow();
    m_controller->addTab(&tips);
    QCOMPARE(tabBar()->count(), 2);
    QCOMPARE(tabBar()->tabText(0), QStringLiteral("News"));
    QCOMPARE(tabBar()->tabText(1), QStringLiteral("Tips"));
}

void WelcomeWindowTest::testCaptionFollowsTheTab()
{
    CPageTab news(emptyPage, "News");
    CPageTab tips(emptyPage, "Tips");
    m_controller->addTab(&news);
    m_controller->addTab(&tips);
    makeWindow();
    tips.rename(QStringLiteral("Hints"));
    QCOMPARE(tabBar()->tabText(0), QStringLiteral("News"));
    QCOMPARE(tabBar()->tabText(1), QStringLiteral("Hints"));
}

void WelcomeWindowTest::testPageOfTheCurrentTabIsShown()
{
    CPageTab news(emptyPage, "News");
    CPageTab tips(pageOfThree, "Tips");
    m_controller->addTab(&news);
    m_controller->addTab(&tips);
    makeWindow();
    m_controller->show();
    QVERIFY(!page()->quickWindow()->contentItem()->findChild<QQuickItem *>("a"));
    QVERIFY(m_controller->showTab(&tips));
    QCOMPARE(tabBar()->currentIndex(), 1);
    QCOMPARE(page()->quickWindow()->contentItem()->childItems().at(0)->childItems().size(), 3);
}

void WelcomeWindowTest::testClickOnATabMakesItCurrent()
{
    CPageTab news(emptyPage, "News");
    CPageTab tips(pageOfThree, "Tips");
    m_controller->addTab(&news);
    m_controller->addTab(&tips);
    makeWindow();
    m_controller->show();
    QTest::mouseClick(tabBar(), Qt::LeftButton, {}, tabBar()->tabRect(1).center());
    QCOMPARE(m_controller->currentTab(), &tips);
    QCOMPARE(page()->quickWindow()->contentItem()->childItems().at(0)->childItems().size(), 3);
}

void WelcomeWindowTest::testPageIsLoadedOnceAndOnlyWhenItIsSeen()
{
    CPageTab news(emptyPage, "News");
    CPageTab tips(emptyPage, "Tips");
    m_controller->addTab(&news);
    m_controller->addTab(&tips);
    makeWindow();
    QCOMPARE(news.setUpCount(), 0);
    m_controller->show();
    QCOMPARE(news.setUpCount(), 1);
    QCOMPARE(tips.setUpCount(), 0);
    m_controller->close();
    m_controller->show();
    m_controller->setCurrentIndex(1);
    m_controller->setCurrentIndex(0);
    QCOMPARE(news.setUpCount(), 1);
    QCOMPARE(tips.setUpCount(), 1);
}

void WelcomeWindowTest::testTabThatIsGoneTakesItsPageAlong()
{
    CPageTab news(pageOfThree, "News");
    auto tips = std::make_unique<CPageTab>(emptyPage, "Tips");
    m_controller->addTab(tips.get());
    m_controller->addTab(&news);
    makeWindow();
    m_controller->show();
    const QPointer<QWidget> former(page());
    tips.reset();
    QVERIFY(!former);
    QCOMPARE(tabBar()->count(), 1);
    QCOMPARE(tabBar()->tabText(0), QStringLiteral("News"));
    QVERIFY(page());
    QCOMPARE(page()->quickWindow()->contentItem()->childItems().at(0)->childItems().size(), 3);
}

void WelcomeWindowTest::testPageHasTheSizeOfTheWindow()
{
    CPageTab news(emptyPage, "News");
    m_controller->addTab(&news);
    makeWindow();
    m_controller->show();
    const auto *item = page()->quickWindow()->contentItem()->childItems().at(0);
    const QSize around = m_window->size() - QSize(400, 300);
    QCOMPARE(QSizeF(item->width(), item->height()), QSizeF(400, 300));
    m_window->resize(around + QSize(700, 450));
    QCOMPARE(QSizeF(item->width(), item->height()), QSizeF(700, 450));
    // It scrolls rather than losing a part.
    m_window->resize(around + QSize(300, 200));
    QCOMPARE(QSizeF(item->width(), item->height()), QSizeF(400, 300));
}

// The screen of this test has 800 x 800 pixels.
void WelcomeWindowTest::testWindowIsNotLargerThanTheScreen()
{
    CPageTab news(QStringLiteral("import QtQuick 2.12\nItem { implicitWidth: 700; "
                                 "implicitHeight: 3000 }"));
    m_controller->addTab(&news);
    makeWindow();
    m_controller->show();
    QVERIFY(m_window->height() < 800);
    const auto *view = m_window->findChild<QScrollArea *>();
    QVERIFY(view->verticalScrollBar()->maximum() > 0);
    QCOMPARE(view->horizontalScrollBar()->maximum(), 0);
}

void WelcomeWindowTest::testPageScrollsToWhereTheKeyboardIs()
{
    CPageTab news(QStringLiteral("import QtQuick 2.12\nItem { implicitWidth: 700; "
                                 "implicitHeight: 3000\n"
                                 "Item { y: 2500; width: 50; height: 100; activeFocusOnTab: true; "
                                 "objectName: \"a\" } }"));
    m_controller->addTab(&news);
    makeWindow();
    m_controller->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    auto *view = m_window->findChild<QScrollArea *>();
    QCOMPARE(view->verticalScrollBar()->value(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(stop(), QStringLiteral("a"));
    const int top = view->verticalScrollBar()->value();
    QVERIFY(top <= 2500 && top + view->viewport()->height() >= 2600);
}

void WelcomeWindowTest::testPageThatCannotBeLoadedShowsWhy()
{
    CPageTab news(QStringLiteral("import QtQuick 2.12\nItem {"), "News");
    m_controller->addTab(&news);
    makeWindow();
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("^The page \"News\" cannot be shown: .*Page.qml:2"));
    m_controller->show();
    QVERIFY(!page());
    const auto *error = m_window->findChild<QLabel *>(QStringLiteral("error"));
    QVERIFY(error && error->isVisible());
    QVERIFY(error->text().startsWith("The page \"News\" cannot be shown: "));
}

void WelcomeWindowTest::testWindowCloses_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Esc") << Way::Escape;
    QTest::newRow("close box") << Way::CloseBox;
    QTest::newRow("accepted") << Way::Accept;
    QTest::newRow("Close of the page") << Way::Controller;
}

void WelcomeWindowTest::testWindowCloses()
{
    QFETCH(Way, way);
    CPageTab news(emptyPage, "News");
    m_controller->addTab(&news);
    makeWindow();
    m_controller->show();
    close(way);
    QVERIFY(!m_window->isVisible());
    QVERIFY(!m_controller->isVisible());
}

void WelcomeWindowTest::testWindowStaysWhileATabHoldsAQuestion_data()
{
    testWindowCloses_data();
}

void WelcomeWindowTest::testWindowStaysWhileATabHoldsAQuestion()
{
    QFETCH(Way, way);
    CPageTab news(emptyPage, "News");
    CPageTab privacy(emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_controller->addTab(&news);
    m_controller->addTab(&privacy);
    makeWindow();
    m_controller->start();
    close(way);
    QVERIFY(m_window->isVisible());
    QVERIFY(m_controller->isVisible());
    const QString reason = QStringLiteral("Please answer the question on \"Privacy\" first, then "
                                          "choose Apply. This window can be closed then.");
    QCOMPARE(notice()->text(), way == Way::Controller ? QString() : reason);

    privacy.setApplyNeeded(false);
    close(way);
    QVERIFY(!m_window->isVisible());
}

void WelcomeWindowTest::testWordWhyItStaysGoesWithTheQuestion()
{
    CPageTab privacy(emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_controller->addTab(&privacy);
    makeWindow();
    m_controller->start();
    close(Way::Escape);
    QVERIFY(!notice()->text().isEmpty());
    privacy.setApplyNeeded(false);
    QCOMPARE(notice()->text(), QString());
}

void WelcomeWindowTest::testWindowBlocksTheOthersWhileATabHoldsAQuestion()
{
    CPageTab privacy(emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_controller->addTab(&privacy);
    makeWindow();
    m_controller->start();
    QCOMPARE(m_window->windowModality(), Qt::ApplicationModal);
    privacy.setApplyNeeded(false);
    close(Way::Escape);
    m_controller->show();
    QCOMPARE(m_window->windowModality(), Qt::NonModal);
}

void WelcomeWindowTest::testQuestionThatComesLateBlocksTheOthersToo()
{
    CPageTab privacy(emptyPage, "Privacy");
    m_controller->addTab(&privacy);
    makeWindow();
    m_controller->show();
    QCOMPARE(m_window->windowModality(), Qt::NonModal);
    privacy.setApplyNeeded(true);
    QVERIFY(m_window->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), m_window.get());
}

void WelcomeWindowTest::testSecondRequestBringsTheWindowBack()
{
    makeWindow();
    m_controller->show();
    m_window->showMinimized();
    m_controller->show();
    QVERIFY(!m_window->isMinimized());
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
    CPageTab tab(pageOfThree, "Tips");
    m_controller->addTab(&tab);
    makeWindow();
    m_controller->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    QVERIFY(page()->hasFocus());
    QStringList walked;
    for (int i = 0; i < stops.size(); ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key));
        walked.append(stop());
    }
    QCOMPARE(walked, stops);
}

void WelcomeWindowTest::testArrowKeysChangeTheTab()
{
    CPageTab news(emptyPage, "News");
    CPageTab tips(pageOfThree, "Tips");
    m_controller->addTab(&news);
    m_controller->addTab(&tips);
    makeWindow();
    m_controller->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    tabBar()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QCOMPARE(m_controller->currentIndex(), 1);
    QVERIFY(tabBar()->hasFocus());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(stop(), QStringLiteral("a"));
}

void WelcomeWindowTest::testTextsFollowTheLanguage()
{
    CPageTab privacy(emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_controller->addTab(&privacy);
    makeWindow();
    m_controller->start();
    close(Way::Escape);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Welcome to the Nerix Viewer"));
    CTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("translated %1"));
    QCOMPARE(notice()->text(), QStringLiteral("translated Privacy"));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Welcome to the Nerix Viewer"));
}

QTEST_MAIN(WelcomeWindowTest)

#include "WelcomeWindowTest.moc"
