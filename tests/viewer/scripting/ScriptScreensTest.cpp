// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CScriptRun.h"
#include "plugins/appcore/CMenuService.h"
#include "plugins/help/CHelpViewService.h"
#include "plugins/localization/CLanguageService.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestTab.h"
#include "support/Texts.h"

#include <Plugin/AppCore/IActionContainer.h>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QUrl>
#include <QWidget>

class ScriptScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void testMenuListsItsActions();
    void testMenuTriggersAnAction();
    void testMenuNamesWhyAnActionIsNotTriggered_data();
    void testMenuNamesWhyAnActionIsNotTriggered();

    void testWelcomeTellsItsTabs();
    void testWelcomeIsShownAndClosed();
    void testWelcomeStaysWhileAnAnswerIsNeeded();
    void testWelcomeShowsATab();
    void testWelcomeRemembersWhetherToShowAtStartup();

    void testHelpTellsWhatWasShown();
    void testLanguageIsSwitched();
    void testUnknownLanguageIsRefused();
    void testSettingsAreRead();
    void testPluginsAreListed();

    void testWindowsAreNamedByTheirTitles();
    void testWindowIsResizedAndItsPictureSaved();
    void testWindowThatIsNotShownIsAnError();
    void testPictureThatCannotBeWrittenIsAnError();
    void testFocusIsWhatAScreenReaderSays();
    void testFocusIsTheCurrentEntryOfAMenu();

private:
    QScopedPointer<CSettingsSandbox> m_sandbox;
};

void ScriptScreensTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
}

namespace {

using Core::CId;
using Core::AppCoreComponents::CContext;
using Plugin::AppCore::CMenuService;
using Plugin::NerixWelcome::CNerixWelcomeController;

} // namespace

void ScriptScreensTest::testMenuListsItsActions()
{
    CScriptRun run;
    QAction action(QStringLiteral("&Save"), nullptr);
    const auto menus = QSharedPointer<CMenuService>::create();
    auto *menu = menus->createActionContainer(CId("Test.Menu"), QStringLiteral("Test"));
    menu->addCommand(
        menus->registerAction(&action, CId("Test.Save"), CContext(CId("AppCore.Global.Context"))),
        CId("Test.Group"));
    run.addService(menus);
    QCOMPARE(run.run("menu.list().forEach(function (e) {\n"
                     "    print(e.id, e.text, e.menu, e.group, e.enabled);\n"
                     "});"),
             QString());
    QCOMPARE(run.printed(), texts({"Test.Save Save Test.Menu Test.Group true"}));
}

void ScriptScreensTest::testMenuTriggersAnAction()
{
    CScriptRun run;
    QAction action;
    int count = 0;
    connect(&action, &QAction::triggered, this, [&count] { ++count; });
    const auto menus = QSharedPointer<CMenuService>::create();
    menus->registerAction(&action, CId("Test.Save"), CContext(CId("AppCore.Global.Context")));
    run.addService(menus);
    QCOMPARE(run.run("menu.trigger('Test.Save');"), QString());
    QCOMPARE(count, 1);
}

void ScriptScreensTest::testMenuNamesWhyAnActionIsNotTriggered_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("failure");
    const auto row = [](const char *name, const char *id, const char *reason) {
        QTest::newRow(name) << QByteArray("menu.trigger('") + id + "');"
                            << QStringLiteral("test.js:1: action \"%1\" %2")
                                   .arg(QString::fromLatin1(id), QString::fromLatin1(reason));
    };
    row("unknown", "Test.Other",
        "is not there: menu.list() gives those that are, and a script has the actions of windows "
        "only with --show-windows");
    row("disabled", "Test.Disabled",
        "is disabled now: wait until menu.list() has it enabled; most actions need a camera that "
        "is "
        "selected and open");
    row("of a view that is not active", "Test.Elsewhere",
        "does not apply to any view that is active now: make its view the active one first");
}

void ScriptScreensTest::testMenuNamesWhyAnActionIsNotTriggered()
{
    QFETCH(QByteArray, script);
    QFETCH(QString, failure);
    CScriptRun run;
    QAction disabled;
    disabled.setEnabled(false);
    QAction elsewhere;
    const auto menus = QSharedPointer<CMenuService>::create();
    menus->registerAction(&disabled, CId("Test.Disabled"), CContext(CId("AppCore.Global.Context")));
    menus->registerAction(&elsewhere, CId("Test.Elsewhere"), CContext(CId("Test.View")));
    run.addService(menus);
    QCOMPARE(run.run(script), failure);
}

void ScriptScreensTest::testWelcomeTellsItsTabs()
{
    CScriptRun run;
    CTestTab news("News");
    CTestTab question("Question", true);
    const auto screen = QSharedPointer<CNerixWelcomeController>::create();
    screen->addTab(&news);
    screen->addTab(&question);
    run.addService(screen);
    QCOMPARE(run.run("welcome.tabs().forEach(function (t) {\n"
                     "    print(t.id, t.title, t.source, t.applyNeeded);\n"
                     "});\n"
                     "print(welcome.currentTab(), welcome.applyNeeded());"),
             QString());
    QCOMPARE(run.printed(), texts({"News News  false", "Question Question  true", "News true"}));
}

void ScriptScreensTest::testWelcomeIsShownAndClosed()
{
    CScriptRun run;
    run.addService(QSharedPointer<CNerixWelcomeController>::create());
    QCOMPARE(run.run("print(welcome.visible()); welcome.show(); print(welcome.visible());\n"
                     "print(welcome.close()); print(welcome.visible(), welcome.currentTab());"),
             QString());
    QCOMPARE(run.printed(), texts({"false", "true", "true", "false "}));
}

void ScriptScreensTest::testWelcomeStaysWhileAnAnswerIsNeeded()
{
    CScriptRun run;
    CTestTab question("Question", true);
    const auto screen = QSharedPointer<CNerixWelcomeController>::create();
    screen->addTab(&question);
    screen->start();
    run.addService(screen);
    QCOMPARE(run.run("print(welcome.close(), welcome.visible());"), QString());
    QCOMPARE(run.printed(), texts({"false true"}));
}

void ScriptScreensTest::testWelcomeShowsATab()
{
    CScriptRun run;
    CTestTab news("News");
    CTestTab other("Other");
    const auto screen = QSharedPointer<CNerixWelcomeController>::create();
    screen->addTab(&news);
    screen->addTab(&other);
    run.addService(screen);
    QCOMPARE(run.run("welcome.showTab('Other');\n"
                     "print(welcome.visible(), welcome.currentTab());\n"
                     "welcome.showTab('Third');"),
             QStringLiteral("test.js:3: there is no tab \"Third\": welcome.tabs() gives those that "
                            "are"));
    QCOMPARE(run.printed(), texts({"true Other"}));
}

void ScriptScreensTest::testWelcomeRemembersWhetherToShowAtStartup()
{
    CScriptRun run;
    run.addService(QSharedPointer<CNerixWelcomeController>::create());
    QCOMPARE(run.run("print(welcome.showAtStartup()); welcome.setShowAtStartup(false);\n"
                     "print(welcome.showAtStartup());\n"
                     "print(settings.get('NerixWelcome/ShowAtStartup'));"),
             QString());
    QCOMPARE(run.printed(), texts({"true", "false", "false"}));
}

void ScriptScreensTest::testHelpTellsWhatWasShown()
{
    CScriptRun run;
    const auto help = QSharedPointer<Plugin::Help::CHelpViewService>::create(
        Plugin::Help::CHelpDocuments(QString()));
    help->showAddress(QUrl(QStringLiteral("https://ostrand.example/")));
    run.addService(help);
    QCOMPARE(run.run("print(help.lastShown());"), QString());
    QCOMPARE(run.printed(), texts({"https://ostrand.example/"}));
}

void ScriptScreensTest::testLanguageIsSwitched()
{
    CScriptRun run;
    run.addService(
        QSharedPointer<Plugin::Localization::CLanguageService>::create([](const QString &) {}));
    QCOMPARE(run.run("language.set('ja'); print(language.get());"), QString());
    QCOMPARE(run.printed(), texts({"ja"}));
}

void ScriptScreensTest::testUnknownLanguageIsRefused()
{
    CScriptRun run;
    run.addService(
        QSharedPointer<Plugin::Localization::CLanguageService>::create([](const QString &) {}));
    QCOMPARE(run.run("language.set('ko'); print(language.get());\n"
                     "try { language.set('klingon'); } catch (error) { print(error.message); }\n"
                     "print(language.get(), settings.get('Localization/Language'));"),
             QString());
    QCOMPARE(run.printed(),
             texts({"ko",
                    "there is no language \"klingon\": give one of en, ja, ko, zh, or "
                    "an empty text to follow the system",
                    "ko ko"}));
}

void ScriptScreensTest::testSettingsAreRead()
{
    QSettings().setValue(QStringLiteral("Group/Key"), true);
    CScriptRun run;
    QCOMPARE(run.run("print(settings.get('Group/Key'), settings.get('Group/Other'));\n"
                     "print(settings.fileName());"),
             QString());
    QCOMPARE(run.printed(),
             QStringList({QStringLiteral("true null"),
                          m_sandbox->path() + QStringLiteral("/Ostrand/nerix-viewer.ini")}));
}

void ScriptScreensTest::testPluginsAreListed()
{
    CScriptRun run;
    QCOMPARE(run.run("print(plugins.list().length);"), QString());
    QCOMPARE(run.printed(), texts({"0"}));
}

void ScriptScreensTest::testWindowsAreNamedByTheirTitles()
{
    QWidget shown;
    shown.setWindowTitle("Shown");
    shown.show();
    QWidget hidden;
    hidden.setWindowTitle("Hidden");
    CScriptRun run;
    QCOMPARE(run.run("print(windows.titles());"), QString());
    QCOMPARE(run.printed(), texts({"Shown"}));
}

void ScriptScreensTest::testWindowIsResizedAndItsPictureSaved()
{
    QWidget window;
    window.setWindowTitle("Main");
    window.show();
    const QString file = m_sandbox->path() + "/main.png";
    CScriptRun run;
    QCOMPARE(run.run("windows.resize('Main', 320, 240);\n"
                     "windows.save('Main', '"
                     + file.toUtf8() + "');"),
             QString());
    QCOMPARE(QImage(file).size(), QSize(320, 240));
}

void ScriptScreensTest::testWindowThatIsNotShownIsAnError()
{
    CScriptRun run;
    QCOMPARE(run.run("windows.save('Main', 'main.png');"),
             QString("test.js:1: no window \"Main\" is shown: windows.titles() gives those "
                     "that are, and a script has windows only with --show-windows"));
}

void ScriptScreensTest::testPictureThatCannotBeWrittenIsAnError()
{
    QWidget window;
    window.setWindowTitle("Main");
    window.show();
    CScriptRun run;
    QCOMPARE(run.run("windows.save('Main', '/no/such/folder/main.png');"),
             QString("test.js:1: /no/such/folder/main.png cannot be written: name a file that "
                     "can, with the suffix .png"));
}

void ScriptScreensTest::testFocusIsWhatAScreenReaderSays()
{
    CScriptRun run;
    QCOMPARE(run.run("print('[' + windows.focus() + ']');"), QString());
    QPushButton button("&Press");
    button.show();
    QApplication::setActiveWindow(&button);
    button.setFocus();
    QCOMPARE(run.run("print('[' + windows.focus() + ']');"), QString());
    QCOMPARE(run.printed(), texts({"[]", "[Press]"}));
}

void ScriptScreensTest::testFocusIsTheCurrentEntryOfAMenu()
{
    QMenu menu;
    menu.addAction("&First");
    menu.addAction("&Second");
    menu.popup({});
    menu.setActiveAction(menu.actions().at(1));
    CScriptRun run;
    QCOMPARE(run.run("print(windows.focus());"), QString());
    QCOMPARE(run.printed(), texts({"Second"}));
}

QTEST_MAIN(ScriptScreensTest)

#include "ScriptScreensTest.moc"
