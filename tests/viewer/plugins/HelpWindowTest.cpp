// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/AppCorePlugin.h"
#include "plugins/appcore/IMenuControlService.h"
#include "plugins/help/CAboutDialog.h"
#include "plugins/help/CHelpBrowser.h"
#include "plugins/help/CHelpWindow.h"
#include "plugins/help/HelpPlugin.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestWindows.h"
#include "support/Texts.h"

#include <CHelpHelper.h>
#include <Core/Plugin/ServiceLookup.h>
#include <DocumentationHelper.h>

#include <pluginsystem/CServiceRegistry.h>

#include <memory>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QWindow>

using Plugin::AppCore::IMenuControlService;
using Plugin::Help::CAboutDialog;
using Plugin::Help::CHelpBrowser;
using Plugin::Help::CHelpWindow;

class HelpWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testDocumentIsShownAsItIsMeant();
    void testEntryOfTheMenuShowsItsDocument_data();
    void testEntryOfTheMenuShowsItsDocument();
    void testMenuHasOnlyTheDocumentsThatAreThere();
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
    void testEscapeClosesTheWindow();
    void testWindowIsNotBlockedByTheDialogThatAskedForIt();
    void testAboutBoxNamesVersionAndLibraries();
    void testAboutBoxCopiesTheVersions();
    void testWindowGoesWithThePlugin();
    void testDocumentOfTheViewerLinksOnlyToWhatIsThere_data();
    void testDocumentOfTheViewerLinksOnlyToWhatIsThere();

private:
    void write(const char *name, const QByteArray &text);
    void start();
    void trigger(const char *id);
    void press(const char *link);
    CHelpWindow *window() const;
    CHelpBrowser *browser() const;

    std::unique_ptr<CSettingsSandbox> m_sandbox;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PluginSystem::CServiceRegistry> m_registry;
    std::unique_ptr<Plugin::AppCore::CAppCorePlugin> m_appCore;
    std::unique_ptr<Plugin::Help::CHelpPlugin> m_plugin;
};

namespace {

const QByteArray contents = "<!-- A note -->\n"
                            "<!-- And one more -->\n"
                            "# The Contents\n"
                            "\n"
                            "Some **bold** words.\n"
                            "\n"
                            "[Cameras](cameras.md) [Statement](docs/privacy.md#how-to-withdraw) "
                            "[FAQ](https://ostrand.example/faq)\n";

const QByteArray cameras = "# Cameras\n\nOne camera, two cameras, and a third CAMERA.\n";

// Longer than the window is high.
QByteArray privacy()
{
    return "# Privacy\n\n" + QByteArray("Words.\n\n").repeated(200)
           + "## How to withdraw\n\nLike this.\n\n" + QByteArray("More.\n\n").repeated(200);
}

} // namespace

void HelpWindowTest::init()
{
    m_sandbox = std::make_unique<CSettingsSandbox>();
    m_folder = std::make_unique<QTemporaryDir>();
    write("help.md", contents);
    write("cameras.md", cameras);
    write("privacy.md", privacy());
}

void HelpWindowTest::cleanup()
{
    if (m_plugin) {
        m_plugin->uninitialize(m_registry.get());
    }
    m_plugin.reset();
    m_appCore.reset();
    m_registry.reset();
    m_folder.reset();
    m_sandbox.reset();
}

void HelpWindowTest::write(const char *name, const QByteArray &text)
{
    QFile file(m_folder->filePath(QString::fromLatin1(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
}

void HelpWindowTest::start()
{
    m_registry = std::make_unique<PluginSystem::CServiceRegistry>();
    m_registry->addService(QSharedPointer<CTestWindows>::create());
    m_appCore = std::make_unique<Plugin::AppCore::CAppCorePlugin>();
    m_plugin = std::make_unique<Plugin::Help::CHelpPlugin>(m_folder->path());
    QVERIFY(m_appCore->preInitialize(m_registry.get()));
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    const auto menus = Core::Plugin::findService<IMenuControlService>(m_registry.get());
    menus->createActionContainer(Core::CId("NerixViewer.Menu.Help"), QStringLiteral("Help"));
    QVERIFY(m_plugin->initialize());
}

void HelpWindowTest::trigger(const char *id)
{
    const auto menus = Core::Plugin::findService<IMenuControlService>(m_registry.get());
    QCOMPARE(menus->trigger(Core::CId(id)), IMenuControlService::TriggerResult::Triggered);
}

// The keys that walk from link to link and follow one.
void HelpWindowTest::press(const char *link)
{
    QVERIFY(QTest::qWaitForWindowActive(window()));
    constexpr int enough = 10;
    for (int steps = 0; steps < enough; ++steps) {
        QTest::keyClick(browser(), Qt::Key_Tab);
        if (browser()->textCursor().selectedText() == QLatin1String(link)) {
            QTest::keyClick(browser(), Qt::Key_Return);
            return;
        }
    }
    QFAIL("no such link");
}

CHelpWindow *HelpWindowTest::window() const
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *found = qobject_cast<CHelpWindow *>(widget)) {
            return found;
        }
    }
    return nullptr;
}

CHelpBrowser *HelpWindowTest::browser() const
{
    return window()->browser();
}

void HelpWindowTest::testDocumentIsShownAsItIsMeant()
{
    start();
    QVERIFY(!window());
    QVERIFY(CHelpHelper::showHelp(CHelpHelper::HelpContents));
    QVERIFY(window()->isVisible());
    QCOMPARE(window()->windowTitle(), QStringLiteral("The Contents - Help"));
    QCOMPARE(browser()->toPlainText(),
             QStringLiteral("The Contents\nSome bold words.\nCameras Statement FAQ"));
    const QTextBlock heading = browser()->document()->begin();
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
    start();
    trigger(entry);
    QVERIFY(window() && window()->isVisible());
    QCOMPARE(window()->windowTitle(), title);
}

void HelpWindowTest::testMenuHasOnlyTheDocumentsThatAreThere()
{
    start();
    QStringList ids;
    const auto menus = Core::Plugin::findService<IMenuControlService>(m_registry.get());
    const auto entries = menus->entries();
    for (const auto &entry : entries) {
        ids.append(entry.id.toString());
    }
    QCOMPARE(ids, texts({"Help.Action.Contents", "Help.Action.Cameras",
                         "Help.Action.PrivacyStatement", "Help.Action.About"}));
}

void HelpWindowTest::testLinkToADocumentIsFollowedInTheWindow()
{
    start();
    trigger("Help.Action.Contents");
    press("Cameras");
    QCOMPARE(window()->windowTitle(), QStringLiteral("Cameras - Help"));
}

void HelpWindowTest::testLinkToAHeadingGoesThere_data()
{
    QTest::addColumn<QByteArray>("link");
    QTest::addColumn<bool>("isFurtherDown");
    QTest::newRow("heading") << QByteArray("privacy.md#how-to-withdraw") << true;
    QTest::newRow("no such heading") << QByteArray("privacy.md#how-to") << false;
    QTest::newRow("document only") << QByteArray("privacy.md") << false;
}

void HelpWindowTest::testLinkToAHeadingGoesThere()
{
    QFETCH(QByteArray, link);
    QFETCH(bool, isFurtherDown);
    write("help.md", "# Contents\n\n[Go](" + link + ")\n");
    start();
    trigger("Help.Action.Contents");
    press("Go");
    QCOMPARE(window()->windowTitle(), QStringLiteral("Privacy - Help"));
    QCOMPARE(browser()->verticalScrollBar()->value() > 0, isFurtherDown);
    if (isFurtherDown) {
        const QTextCursor top = browser()->cursorForPosition({20, 20});
        QVERIFY(qAbs(top.blockNumber() - browser()->textCursor().blockNumber()) <= 2);
        QCOMPARE(browser()->textCursor().block().text(), QStringLiteral("How to withdraw"));
    }
}

void HelpWindowTest::testOtherLinkGoesToTheBrowser_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("https") << "https://ostrand.example/faq";
    QTest::newRow("http") << "http://ostrand.example/faq";
    QTest::newRow("mailto") << "mailto:support@ostrand.example";
}

void HelpWindowTest::testOtherLinkGoesToTheBrowser()
{
    QFETCH(QString, address);
    write("help.md", "# Contents\n\n[Go](" + address.toUtf8() + ")\n");
    start();
    QStringList opened;
    DocumentationHelper::setHandler([&opened](const QUrl &url, bool) {
        opened.append(url.toString());
        return true;
    });
    trigger("Help.Action.Contents");
    press("Go");
    QCOMPARE(opened, QStringList(address));
    QCOMPARE(window()->windowTitle(), QStringLiteral("Contents - Help"));
}

void HelpWindowTest::testAddressThatIsRefusedIsToldInTheWindow()
{
    write("help.md", "# Contents\n\n[Go](file:///etc/passwd)\n");
    start();
    trigger("Help.Action.Contents");
    QTest::ignoreMessage(QtWarningMsg, "not opened: file:///etc/passwd (only http, https and "
                                       "mailto addresses are)");
    press("Go");
    QCOMPARE(window()->statusBar()->currentMessage(),
             QStringLiteral("file:///etc/passwd cannot be opened"));
    QCOMPARE(window()->windowTitle(), QStringLiteral("Contents - Help"));
}

void HelpWindowTest::testBackAndForward()
{
    start();
    trigger("Help.Action.Contents");
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTest::keyClick(browser(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(window()->windowTitle(), QStringLiteral("The Contents - Help"));
    press("Cameras");
    QTest::keyClick(browser(), Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(window()->windowTitle(), QStringLiteral("The Contents - Help"));
    QTest::keyClick(browser(), Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(window()->windowTitle(), QStringLiteral("Cameras - Help"));
    QTest::keyClick(browser(), Qt::Key_Home, Qt::AltModifier);
    QCOMPARE(window()->windowTitle(), QStringLiteral("The Contents - Help"));
}

void HelpWindowTest::testSearch_data()
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

void HelpWindowTest::testSearch()
{
    QFETCH(QString, text);
    QFETCH(QList<Qt::KeyboardModifiers>, keys);
    QFETCH(int, position);
    start();
    trigger("Help.Action.Cameras");
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QTest::keyClick(browser(), Qt::Key_F, Qt::ControlModifier);
    auto *field = window()->findChild<QLineEdit *>(QStringLiteral("search"));
    QVERIFY(field->hasFocus());
    QTest::keyClicks(field, text);
    for (const Qt::KeyboardModifiers modifiers : qAsConst(keys)) {
        QTest::keyClick(field, Qt::Key_F3, modifiers);
    }
    const QTextCursor found = browser()->textCursor();
    QCOMPARE(found.hasSelection() ? found.selectionStart() : -1, position);
    QTEST(window()->statusBar()->currentMessage(), "message");
}

void HelpWindowTest::testSizeOfTheLettersIsKept()
{
    start();
    trigger("Help.Action.Contents");
    QVERIFY(QTest::qWaitForWindowActive(window()));
    const int usual = browser()->font().pointSize();
    QTest::keyClick(browser(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(browser(), Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(browser(), Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(browser()->font().pointSize(), usual + 1);
    cleanup();
    init();
    QSettings().setValue("Help/Zoom", 3);
    start();
    trigger("Help.Action.Contents");
    QVERIFY(QTest::qWaitForWindowActive(window()));
    QCOMPARE(browser()->font().pointSize(), usual + 3);
    QTest::keyClick(browser(), Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(browser()->font().pointSize(), usual);
    QCOMPARE(QSettings().value("Help/Zoom").toInt(), 0);
}

void HelpWindowTest::testEscapeClosesTheWindow()
{
    start();
    trigger("Help.Action.Contents");
    QTest::keyClick(browser(), Qt::Key_Escape);
    QVERIFY(!window()->isVisible());
    trigger("Help.Action.Contents");
    QVERIFY(window()->isVisible());
}

void HelpWindowTest::testWindowIsNotBlockedByTheDialogThatAskedForIt()
{
    start();
    trigger("Help.Action.Contents");
    QDialog dialog;
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    trigger("Help.Action.Cameras");
    QVERIFY(window()->isVisible());
    QCOMPARE(window()->windowHandle()->transientParent(), dialog.windowHandle());
    QTest::keyClick(window(), Qt::Key_Escape);
    QVERIFY(!window()->isVisible());
    dialog.hide();
    trigger("Help.Action.Cameras");
    QVERIFY(!window()->windowHandle()->transientParent());
}

void HelpWindowTest::testAboutBoxNamesVersionAndLibraries()
{
    start();
    trigger("Help.Action.About");
    const QWidget *main =
        Core::Plugin::findService<Plugin::NerixViewer::IMainWindowService>(m_registry.get())
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
    start();
    trigger("Help.Action.Contents");
    QVERIFY(window());
    QVERIFY(m_plugin->uninitialize(m_registry.get()));
    QVERIFY(!window());
    const auto menus = Core::Plugin::findService<IMenuControlService>(m_registry.get());
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
