// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "HelpWindowFixture.h"
#include "support/CSettingsSandbox.h"

#include <DocumentationHelper.h>

#include <QLineEdit>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTextBlock>

class HelpBrowsingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_sandbox = std::make_unique<CSettingsSandbox>();
        m_help = std::make_unique<HelpWindowFixture>();
    }
    void cleanup()
    {
        m_help.reset();
        m_sandbox.reset();
    }

    void testLinkToADocumentIsFollowedInTheWindow();
    void testLinkToAHeadingGoesThere_data();
    void testLinkToAHeadingGoesThere();
    void testOtherLinkGoesToTheBrowser_data();
    void testOtherLinkGoesToTheBrowser();
    void testAddressThatIsRefusedIsToldInTheWindow();
    void testBackAndForward();
    void testSearch_data();
    void testSearch();
    void testSizeOfTheLettersIsKept();

private:
    std::unique_ptr<CSettingsSandbox> m_sandbox;
    std::unique_ptr<HelpWindowFixture> m_help;
};

void HelpBrowsingTest::testLinkToADocumentIsFollowedInTheWindow()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    m_help->press("Cameras");
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("Cameras - Help"));
}

void HelpBrowsingTest::testLinkToAHeadingGoesThere_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<bool>("isFurtherDown");
    QTest::newRow("heading") << QByteArray("privacy.md#how-to-withdraw") << true;
    QTest::newRow("no such heading") << QByteArray("privacy.md#how-to") << false;
    QTest::newRow("document only") << QByteArray("privacy.md") << false;
}

void HelpBrowsingTest::testLinkToAHeadingGoesThere()
{
    QFETCH(QByteArray, link);
    QFETCH(bool, isFurtherDown);
    m_help->write("help.md", "# Contents\n\n[Go](" + link + ")\n");
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    m_help->press("Go");
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("Privacy - Help"));
    QCOMPARE(m_help->browser()->verticalScrollBar()->value() > 0, isFurtherDown);
    if (isFurtherDown) {
        const QTextCursor top = m_help->browser()->cursorForPosition({20, 20});
        QVERIFY(qAbs(top.blockNumber() - m_help->browser()->textCursor().blockNumber()) <= 2);
        QCOMPARE(m_help->browser()->textCursor().block().text(), QStringLiteral("How to withdraw"));
    }
}

void HelpBrowsingTest::testOtherLinkGoesToTheBrowser_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("https") << "https://ostrand.example/faq";
    QTest::newRow("http") << "http://ostrand.example/faq";
    QTest::newRow("mailto") << "mailto:support@ostrand.example";
}

void HelpBrowsingTest::testOtherLinkGoesToTheBrowser()
{
    QFETCH(QString, address);
    m_help->write("help.md", "# Contents\n\n[Go](" + address.toUtf8() + ")\n");
    m_help->start();
    QStringList opened;
    DocumentationHelper::setHandler([&opened](const QUrl &url, bool) {
        opened.append(url.toString());
        return true;
    });
    m_help->trigger("Help.Action.Contents");
    m_help->press("Go");
    QCOMPARE(opened, QStringList(address));
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("Contents - Help"));
}

void HelpBrowsingTest::testAddressThatIsRefusedIsToldInTheWindow()
{
    m_help->write("help.md", "# Contents\n\n[Go](file:///etc/passwd)\n");
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QTest::ignoreMessage(QtWarningMsg, "not opened: file:///etc/passwd (only http, https and "
                                       "mailto addresses are)");
    m_help->press("Go");
    QCOMPARE(m_help->window()->statusBar()->currentMessage(),
             QStringLiteral("file:///etc/passwd cannot be opened"));
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("Contents - Help"));
}

void HelpBrowsingTest::testBackAndForward()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QVERIFY(QTest::qWaitForWindowActive(m_help->window()));
    QTest::keyClick(m_help->browser(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("The Contents - Help"));
    m_help->press("Cameras");
    QTest::keyClick(m_help->browser(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("The Contents - Help"));
    QTest::keyClick(m_help->browser(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("Cameras - Help"));
    QTest::keyClick(m_help->browser(), Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("The Contents - Help"));
}

void HelpBrowsingTest::testSearch_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<Qt::KeyboardModifiers>>("keys");
    QTest::addColumn<int>("position");
    QTest::addColumn<QString>("message");
    const Qt::KeyboardModifiers next;
    const Qt::KeyboardModifiers previous = Qt::ShiftModifier;
    // "Cameras|One camera, two cameras, and a third CAMERA."
    QTest::newRow("first") << "camera" << QList<Qt::KeyboardModifiers>{next} << 0 << "";
    QTest::newRow("next") << "camera" << QList<Qt::KeyboardModifiers>{next, next} << 12 << "";
    QTest::newRow("in capitals") << "camera" << QList<Qt::KeyboardModifiers>{next, next, next, next}
                                 << 45 << "";
    QTest::newRow("round") << "camera" << QList<Qt::KeyboardModifiers>{next, next, next, next, next}
                           << 0 << "";
    QTest::newRow("back") << "camera" << QList<Qt::KeyboardModifiers>{next, next, previous} << 0
                          << "";
    QTest::newRow("back round") << "camera" << QList<Qt::KeyboardModifiers>{next, previous} << 45
                                << "";
    QTest::newRow("not there") << "tripod" << QList<Qt::KeyboardModifiers>{next} << -1
                               << "\"tripod\" is not in this document";
}

void HelpBrowsingTest::testSearch()
{
    QFETCH(QString, text);
    QFETCH(QList<Qt::KeyboardModifiers>, keys);
    QFETCH(int, position);
    m_help->start();
    m_help->trigger("Help.Action.Cameras");
    QVERIFY(QTest::qWaitForWindowActive(m_help->window()));
    QTest::keyClick(m_help->browser(), Qt::Key_F, Qt::ControlModifier);
    auto *field = m_help->window()->findChild<QLineEdit *>(QStringLiteral("search"));
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, text);
    for (const Qt::KeyboardModifiers modifiers : qAsConst(keys)) {
        QTest::keyClick(field, Qt::Key_F3, modifiers);
    }
    const QTextCursor found = m_help->browser()->textCursor();
    QCOMPARE(found.hasSelection() ? found.selectionStart() : -1, position);
    QTEST(m_help->window()->statusBar()->currentMessage(), "message");
}

void HelpBrowsingTest::testSizeOfTheLettersIsKept()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QVERIFY(QTest::qWaitForWindowActive(m_help->window()));
    const int usual = m_help->browser()->font().pointSize();
    QTest::keyClick(m_help->browser(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(m_help->browser(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(m_help->browser(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(m_help->browser()->font().pointSize(), usual + 1);
    m_help = std::make_unique<HelpWindowFixture>();
    QSettings().setValue("Help/Zoom", 3);
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QVERIFY(QTest::qWaitForWindowActive(m_help->window()));
    QCOMPARE(m_help->browser()->font().pointSize(), usual + 3);
    QTest::keyClick(m_help->browser(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(m_help->browser()->font().pointSize(), usual);
    QCOMPARE(QSettings().value("Help/Zoom").toInt(), 0);
}

QTEST_MAIN(HelpBrowsingTest)

#include "HelpBrowsingTest.moc"
