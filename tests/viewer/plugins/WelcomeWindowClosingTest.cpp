// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "WelcomeWindowFixture.h"

#include <QLabel>
#include <QTest>
#include <QTranslator>

namespace {

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

class WelcomeWindowClosingTest : public QObject
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

    void testWindowCloses_data();
    void testWindowCloses();
    void testWindowStaysWhileATabHoldsAQuestion_data();
    void testWindowStaysWhileATabHoldsAQuestion();
    void testWordWhyItStaysGoesWithTheQuestion();
    void testWindowBlocksTheOthersWhileATabHoldsAQuestion();
    void testQuestionThatComesLateBlocksTheOthersToo();
    void testSecondRequestBringsTheWindowBack();
    void testTextsFollowTheLanguage();
    void testLinkThatFailsIsToldInTheWindow();
    void testProblemElsewhereIsNotTold();

private:
    void close(Way way);

    std::unique_ptr<WelcomeWindowFixture> m_screen;
};

void WelcomeWindowClosingTest::close(Way way)
{
    switch (way) {
    case Way::Escape:
        QTest::keyClick(m_screen->window.get(), Qt::Key_Escape);
        break;
    case Way::CloseBox:
        m_screen->window->close();
        break;
    case Way::Accept:
        m_screen->window->accept();
        break;
    case Way::Controller:
        m_screen->controller.onCloseNerixWelcomeClicked();
        break;
    }
}

void WelcomeWindowClosingTest::testWindowCloses_data()
{
    QTest::addColumn<Way>("way");
    QTest::newRow("Esc") << Way::Escape;
    QTest::newRow("close box") << Way::CloseBox;
    QTest::newRow("accepted") << Way::Accept;
    QTest::newRow("Close of the page") << Way::Controller;
}

void WelcomeWindowClosingTest::testWindowCloses()
{
    QFETCH(Way, way);
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    m_screen->controller.addTab(&news);
    m_screen->makeWindow();
    m_screen->controller.show();
    close(way);
    QVERIFY(!m_screen->window->isVisible());
    QVERIFY(!m_screen->controller.isVisible());
}

void WelcomeWindowClosingTest::testWindowStaysWhileATabHoldsAQuestion_data()
{
    testWindowCloses_data();
}

void WelcomeWindowClosingTest::testWindowStaysWhileATabHoldsAQuestion()
{
    QFETCH(Way, way);
    CPageTab news(WelcomeWindowFixture::emptyPage, "News");
    CPageTab privacy(WelcomeWindowFixture::emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_screen->controller.addTab(&news);
    m_screen->controller.addTab(&privacy);
    m_screen->makeWindow();
    m_screen->controller.start();
    close(way);
    QVERIFY(m_screen->window->isVisible());
    QVERIFY(m_screen->controller.isVisible());
    const QString reason = QStringLiteral("Please answer the question on \"Privacy\" first, then "
                                          "choose Apply. This window can be closed then.");
    QCOMPARE(m_screen->notice()->text(), way == Way::Controller ? QString() : reason);

    privacy.setApplyNeeded(false);
    close(way);
    QVERIFY(!m_screen->window->isVisible());
}

void WelcomeWindowClosingTest::testWordWhyItStaysGoesWithTheQuestion()
{
    CPageTab privacy(WelcomeWindowFixture::emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_screen->controller.addTab(&privacy);
    m_screen->makeWindow();
    m_screen->controller.start();
    close(Way::Escape);
    QVERIFY(!m_screen->notice()->text().isEmpty());
    privacy.setApplyNeeded(false);
    QCOMPARE(m_screen->notice()->text(), QString());
}

void WelcomeWindowClosingTest::testWindowBlocksTheOthersWhileATabHoldsAQuestion()
{
    CPageTab privacy(WelcomeWindowFixture::emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_screen->controller.addTab(&privacy);
    m_screen->makeWindow();
    m_screen->controller.start();
    QCOMPARE(m_screen->window->windowModality(), Qt::ApplicationModal);
    privacy.setApplyNeeded(false);
    close(Way::Escape);
    m_screen->controller.show();
    QCOMPARE(m_screen->window->windowModality(), Qt::NonModal);
}

void WelcomeWindowClosingTest::testQuestionThatComesLateBlocksTheOthersToo()
{
    CPageTab privacy(WelcomeWindowFixture::emptyPage, "Privacy");
    m_screen->controller.addTab(&privacy);
    m_screen->makeWindow();
    m_screen->controller.show();
    QCOMPARE(m_screen->window->windowModality(), Qt::NonModal);
    privacy.setApplyNeeded(true);
    QVERIFY(m_screen->window->isVisible());
    QCOMPARE(QApplication::activeModalWidget(), m_screen->window.get());
}

void WelcomeWindowClosingTest::testSecondRequestBringsTheWindowBack()
{
    m_screen->makeWindow();
    m_screen->controller.show();
    m_screen->window->showMinimized();
    m_screen->controller.show();
    QVERIFY(!m_screen->window->isMinimized());
}

void WelcomeWindowClosingTest::testTextsFollowTheLanguage()
{
    CPageTab privacy(WelcomeWindowFixture::emptyPage, "Privacy");
    privacy.setApplyNeeded(true);
    m_screen->controller.addTab(&privacy);
    m_screen->makeWindow();
    m_screen->controller.start();
    close(Way::Escape);
    QCOMPARE(m_screen->window->windowTitle(), QStringLiteral("Welcome to the Nerix Viewer"));
    CTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QCOMPARE(m_screen->window->windowTitle(), QStringLiteral("translated %1"));
    QCOMPARE(m_screen->notice()->text(), QStringLiteral("translated Privacy"));
    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(m_screen->window->windowTitle(), QStringLiteral("Welcome to the Nerix Viewer"));
}

void WelcomeWindowClosingTest::testLinkThatFailsIsToldInTheWindow()
{
    CPageTab tab(WelcomeWindowFixture::emptyPage, "News");
    m_screen->controller.addTab(&tab);
    m_screen->makeWindow();
    m_screen->controller.show();
    QVERIFY(QTest::qWaitForWindowActive(m_screen->window.get()));
    m_screen->window->showProblem("No browser");
    QCOMPARE(m_screen->notice()->text(), QStringLiteral("No browser"));
    m_screen->window->dropProblem(); // the next link did not fail
    QCOMPARE(m_screen->notice()->text(), QString());
    m_screen->window->showProblem("No browser");
    m_screen->controller.close();
    m_screen->controller.show();
    QCOMPARE(m_screen->notice()->text(), QString());
}

void WelcomeWindowClosingTest::testProblemElsewhereIsNotTold()
{
    CPageTab tab(WelcomeWindowFixture::emptyPage, "News");
    m_screen->controller.addTab(&tab);
    m_screen->makeWindow();
    m_screen->controller.show();
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    m_screen->window->showProblem("No browser");
    QCOMPARE(m_screen->notice()->text(), QString());
}

QTEST_MAIN(WelcomeWindowClosingTest)

#include "WelcomeWindowClosingTest.moc"
