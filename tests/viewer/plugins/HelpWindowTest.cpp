// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "HelpWindowFixture.h"
#include "plugins/appcore/IMenuControlService.h"
#include "plugins/help/CAboutDialog.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestWindows.h"
#include "support/Texts.h"

#include <CHelpHelper.h>
#include <Core/Plugin/ServiceLookup.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QWindow>

using Plugin::AppCore::IMenuControlService;
using Plugin::Help::CAboutDialog;

class HelpWindowTest : public QObject
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

    void testDocumentIsShownAsItIsMeant();
    void testEntryOfTheMenuShowsItsDocument_data();
    void testEntryOfTheMenuShowsItsDocument();
    void testMenuHasOnlyTheDocumentsThatAreThere();
    void testEscapeClosesTheWindow();
    void testWindowIsNotBlockedByTheDialogThatAskedForIt();
    void testAboutBoxNamesVersionAndLibraries();
    void testAboutBoxCopiesTheVersions();
    void testWindowGoesWithThePlugin();
    void testDocumentOfTheViewerLinksOnlyToWhatIsThere_data();
    void testDocumentOfTheViewerLinksOnlyToWhatIsThere();

private:
    std::unique_ptr<CSettingsSandbox> m_sandbox;
    std::unique_ptr<HelpWindowFixture> m_help;
};

void HelpWindowTest::testDocumentIsShownAsItIsMeant()
{
    m_help->start();
    QVERIFY(!m_help->window());
    QVERIFY(CHelpHelper::showHelp(CHelpHelper::HelpContents));
    QVERIFY(m_help->window()->isVisible());
    QCOMPARE(m_help->window()->windowTitle(), QStringLiteral("The Contents - Help"));
    QCOMPARE(m_help->browser()->toPlainText(),
             QStringLiteral("The Contents\nSome bold words.\nCameras Statement FAQ"));
    const QTextBlock heading = m_help->browser()->document()->begin();
    QCOMPARE(heading.blockFormat().headingLevel(), 1);
}

void HelpWindowTest::testEntryOfTheMenuShowsItsDocument_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("title");
    QTest::newRow("contents") << QByteArray("Help.Action.Contents") << "The Contents - Help";
    QTest::newRow("cameras") << QByteArray("Help.Action.Cameras") << "Cameras - Help";
    QTest::newRow("privacy") << QByteArray("Help.Action.PrivacyStatement") << "Privacy - Help";
}

void HelpWindowTest::testEntryOfTheMenuShowsItsDocument()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, title);
    m_help->start();
    m_help->trigger(entry);
    QVERIFY(m_help->window() && m_help->window()->isVisible());
    QCOMPARE(m_help->window()->windowTitle(), title);
}

void HelpWindowTest::testMenuHasOnlyTheDocumentsThatAreThere()
{
    m_help->start();
    QStringList ids;
    const auto menus = Core::Plugin::findService<IMenuControlService>(&m_help->registry);
    const auto entries = menus->entries();
    for (const auto &entry : entries) {
        ids.append(entry.id.toString());
    }
    QCOMPARE(ids, texts({"Help.Action.Contents", "Help.Action.Cameras",
                         "Help.Action.PrivacyStatement", "Help.Action.About"}));
}

void HelpWindowTest::testEscapeClosesTheWindow()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QTest::keyClick(m_help->browser(), Qt::Key_Escape);
    QVERIFY(!m_help->window()->isVisible());
    m_help->trigger("Help.Action.Contents");
    QVERIFY(m_help->window()->isVisible());
}

void HelpWindowTest::testWindowIsNotBlockedByTheDialogThatAskedForIt()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    m_help->trigger("Help.Action.Cameras");
    QVERIFY(m_help->window()->isVisible());
    QCOMPARE(m_help->window()->windowHandle()->transientParent(), dialog.windowHandle());
    QTest::keyClick(m_help->window(), Qt::Key_Escape);
    QVERIFY(!m_help->window()->isVisible());
    dialog.hide();
    m_help->trigger("Help.Action.Cameras");
    QVERIFY(!m_help->window()->windowHandle()->transientParent());
}

void HelpWindowTest::testAboutBoxNamesVersionAndLibraries()
{
    m_help->start();
    m_help->trigger("Help.Action.About");
    const QWidget *main =
        Core::Plugin::findService<Plugin::NerixViewer::IMainWindowService>(&m_help->registry)
            ->window();
    const auto *about = main->findChild<CAboutDialog *>();
    QVERIFY(about && about->isVisible());
    QString text;
    const auto labels = about->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        text += label->text() + QLatin1Char('\n');
    }
    for (const char *part : {"Nerix Viewer 7.1.0", "Qt 5.15.", "Aravis 0.8.", "GLib 2.",
                             "Copyright 2026 Ostrand", "MIT licence"}) {
        QVERIFY2(text.contains(QLatin1String(part)), part);
    }
}

void HelpWindowTest::testAboutBoxCopiesTheVersions()
{
    CAboutDialog about;
    const auto buttons = about.findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button->text() == QLatin1String("&Copy Versions")) {
            button->click();
        }
    }
    const QString copied = QApplication::clipboard()->text();
    QVERIFY2(copied.startsWith("Nerix Viewer 7.1.0\nQt 5.15."), qPrintable(copied));
}

void HelpWindowTest::testWindowGoesWithThePlugin()
{
    m_help->start();
    m_help->trigger("Help.Action.Contents");
    QVERIFY(m_help->window());
    QVERIFY(m_help->plugin->uninitialize(&m_help->registry));
    QVERIFY(!m_help->window());
    const auto menus = Core::Plugin::findService<IMenuControlService>(&m_help->registry);
    QVERIFY(menus->entries().isEmpty());
}

void HelpWindowTest::testDocumentOfTheViewerLinksOnlyToWhatIsThere_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {0, 1, 2, 3, 4, 5}) {
        QTest::addRow("type %d", type) << type;
    }
}

void HelpWindowTest::testDocumentOfTheViewerLinksOnlyToWhatIsThere()
{
    QFETCH(int, type);
    const Plugin::Help::CHelpDocuments documents(QStringLiteral(NERIX_DOCUMENTS));
    const QString text = documents.text(documents.path(static_cast<CHelpHelper::HelpType>(type)));
    QVERIFY2(text.startsWith("# "), qPrintable(text.left(30)));
    auto links = QRegularExpression(QStringLiteral("\\]\\(([^)]+)\\)")).globalMatch(text);
    while (links.hasNext()) {
        const QUrl link(links.next().captured(1));
        const bool isThere =
            link.scheme() == QLatin1String("https") || !documents.resolve(link).isEmpty();
        QVERIFY2(isThere, qPrintable(link.toString()));
    }
}

QTEST_MAIN(HelpWindowTest)

#include "HelpWindowTest.moc"
