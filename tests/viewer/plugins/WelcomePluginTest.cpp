// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/AppCorePlugin.h"
#include "plugins/appcore/IMenuControlService.h"
#include "plugins/help/IHelpViewService.h"
#include "plugins/nerixviewer/NerixViewerPlugin.h"
#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/NerixWelcomePlugin.h"
#include "support/CFakeMainWindow.h"
#include "support/CSettingsSandbox.h"
#include "support/CTestTab.h"
#include "support/CTestWindows.h"

#include <Core/Plugin/ServiceLookup.h>
#include <Plugin/NerixWelcome/INerixWelcomeService.h>

#include <pluginsystem/CServiceRegistry.h>

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

using Core::Plugin::findService;
using Plugin::NerixWelcome::CNerixWelcomeController;
using Plugin::NerixWelcome::INerixWelcomeService;

namespace {

// Shows nothing; the test emits its signals.
class CHelpViews : public Plugin::Help::IHelpViewService
{
public:
    QString lastShown() const override
    {
        return {};
    }
};

QWidget *welcomeWindow()
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("welcomeWindow")) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

class WelcomePluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testServiceShowsTheTabsOfOtherPlugins();
    void testTabThatWasNeverAddedIsNotShown();
    void testScreenStartsWhenEveryPluginIsInitialized();
    void testViewMenuBringsUpTheScreen();
    void testEntryIsDisabledWithoutTabs();
    void testServiceMayBeKeptLongerThanThePlugin();
    void testWindowTellsThatALinkFailed();
    void testConsentPageIsLeftOutWhereTrackingIsOff_data();
    void testConsentPageIsLeftOutWhereTrackingIsOff();
    void testConsentPageStaysWhereNothingMayBeSent();

private:
    PluginSystem::CServiceRegistry *registry()
    {
        return m_registry.data();
    }

    QScopedPointer<CSettingsSandbox> m_sandbox;
    QScopedPointer<PluginSystem::CServiceRegistry> m_registry;
    QScopedPointer<Plugin::AppCore::CAppCorePlugin> m_appCore;
    QScopedPointer<Plugin::NerixViewer::CNerixViewerPlugin> m_viewer;
    QScopedPointer<Plugin::NerixWelcome::CNerixWelcomePlugin> m_plugin;
};

void WelcomePluginTest::init()
{
    m_sandbox.reset(new CSettingsSandbox);
    m_registry.reset(new PluginSystem::CServiceRegistry);
    m_appCore.reset(new Plugin::AppCore::CAppCorePlugin);
    m_viewer.reset(new Plugin::NerixViewer::CNerixViewerPlugin(
        Plugin::NerixViewer::WindowMode::WithoutWindows));
    m_plugin.reset(new Plugin::NerixWelcome::CNerixWelcomePlugin);
    QVERIFY(m_appCore->preInitialize(registry()));
    QVERIFY(m_viewer->preInitialize(registry()));
    QVERIFY(m_plugin->preInitialize(registry()));
    QVERIFY(m_appCore->initialize());
    QVERIFY(m_viewer->initialize());
    QVERIFY(m_plugin->initialize());
}

void WelcomePluginTest::cleanup()
{
    m_plugin.reset();
    m_viewer.reset();
    m_appCore.reset();
    m_registry.reset();
    m_sandbox.reset();
}

void WelcomePluginTest::testServiceShowsTheTabsOfOtherPlugins()
{
    const auto controller = findService<CNerixWelcomeController>(registry());
    const auto service = findService<INerixWelcomeService>(registry());
    CTestTab tab;
    service->addTab(&tab);
    QCOMPARE(controller->tabs().size(), 1);
    service->showTab(&tab, this);
    QVERIFY(controller->isVisible());
}

void WelcomePluginTest::testTabThatWasNeverAddedIsNotShown()
{
    const auto service = findService<INerixWelcomeService>(registry());
    CTestTab tab;
    setObjectName(QStringLiteral("Requester"));
    for (CTestTab *unknown : {&tab, static_cast<CTestTab *>(nullptr)}) {
        QTest::ignoreMessage(QtWarningMsg, "the welcome screen cannot show a tab for Requester: it "
                                           "was never added, or is gone");
        service->showTab(unknown, this);
    }
    QVERIFY(!findService<CNerixWelcomeController>(registry())->isVisible());
}

void WelcomePluginTest::testScreenStartsWhenEveryPluginIsInitialized()
{
    const auto controller = findService<CNerixWelcomeController>(registry());
    CTestTab tab;
    controller->addTab(&tab);
    QVERIFY(!controller->isVisible());
    Q_EMIT m_registry->initializationDone();
    QVERIFY(controller->isVisible());
}

void WelcomePluginTest::testViewMenuBringsUpTheScreen()
{
    using Plugin::AppCore::IMenuControlService;
    const auto menus = findService<IMenuControlService>(registry());
    const auto controller = findService<CNerixWelcomeController>(registry());
    CTestTab tab;
    controller->addTab(&tab);
    QCOMPARE(menus->trigger(Core::CId("NerixWelcome.Action.Show")),
             IMenuControlService::TriggerResult::Triggered);
    QVERIFY(controller->isVisible());
}

void WelcomePluginTest::testEntryIsDisabledWithoutTabs()
{
    using Plugin::AppCore::IMenuControlService;
    const auto menus = findService<IMenuControlService>(registry());
    const Core::CId entry("NerixWelcome.Action.Show");
    QCOMPARE(menus->trigger(entry), IMenuControlService::TriggerResult::Disabled);
    {
        CTestTab tab;
        findService<CNerixWelcomeController>(registry())->addTab(&tab);
        QCOMPARE(menus->trigger(entry), IMenuControlService::TriggerResult::Triggered);
    }
    QCOMPARE(menus->trigger(entry), IMenuControlService::TriggerResult::Disabled);
}

void WelcomePluginTest::testServiceMayBeKeptLongerThanThePlugin()
{
    const auto service = findService<INerixWelcomeService>(registry());
    QVERIFY(m_plugin->uninitialize(registry()));
    QVERIFY(!findService<INerixWelcomeService>(registry()));
    m_plugin.reset();
    CTestTab tab;
    service->addTab(&tab);
    service->showTab(&tab, this);
}

void WelcomePluginTest::testWindowTellsThatALinkFailed()
{
    const auto help = QSharedPointer<CHelpViews>::create();
    m_plugin->uninitialize(registry());
    m_registry->addService(QSharedPointer<CFakeMainWindow>::create());
    m_registry->addService(help);
    QVERIFY(m_plugin->preInitialize(registry()));
    QVERIFY(m_plugin->initialize());
    Q_EMIT m_registry->initializationDone();
    const QWidget *window = nullptr;
    QVERIFY(QTest::qWaitFor([&] { return (window = welcomeWindow()) != nullptr; }));
    findService<CNerixWelcomeController>(registry())->show();
    QVERIFY(QTest::qWaitForWindowActive(welcomeWindow()));

    const auto *notice = window->findChild<QLabel *>(QStringLiteral("notice"));
    Q_EMIT help->failed(QStringLiteral("No browser could be started"));
    QCOMPARE(notice->text(), QStringLiteral("No browser could be started"));
    Q_EMIT help->shown(QStringLiteral("https://ostrand.example/faq"));
    QCOMPARE(notice->text(), QString());
}

void WelcomePluginTest::testConsentPageIsLeftOutWhereTrackingIsOff_data()
{
    using Kind = Policy::CUsagePolicy::Kind;
    QTest::addColumn<int>("kind");
    QTest::newRow("by the administrator") << int(Kind::OffByAdministrator);
    QTest::newRow("by the environment") << int(Kind::OffByEnvironment);
    QTest::newRow("by a file that makes no sense") << int(Kind::OffByUnreadableFile);
}

// The page asks a question that was never answered; it would not let the user leave.
void WelcomePluginTest::testConsentPageIsLeftOutWhereTrackingIsOff()
{
    QFETCH(int, kind);
    const Policy::CUsagePolicy policy{Policy::CUsagePolicy::Kind(kind)};
    const auto windows = QSharedPointer<CTestWindows>::create();
    PluginSystem::CServiceRegistry other;
    other.addService(windows);
    windows->window()->show();
    Plugin::NerixWelcome::CNerixWelcomePlugin plugin(policy);
    QVERIFY(plugin.preInitialize(&other));
    const auto controller = findService<CNerixWelcomeController>(&other);
    const auto service = findService<INerixWelcomeService>(&other);
    CTestTab page("UsageTracking.NerixWelcome.DataPrivacy", true);
    CTestTab another;
    service->addTab(&page);
    service->addTab(&another);
    QCOMPARE(controller->tabObjects(), QList<QObject *>{&another});
    QVERIFY(!controller->applyFromTabsIsNeeded());

    // What Help > Data Privacy does.
    service->showTab(&page, this);
    QVERIFY(!controller->isVisible());
    const auto *message = windows->window()->findChild<QMessageBox *>();
    QVERIFY(message && message->isVisible());
    QCOMPARE(message->windowTitle(), QStringLiteral("Data Privacy"));
    QCOMPARE(message->text(), policy.text());
}

void WelcomePluginTest::testConsentPageStaysWhereNothingMayBeSent()
{
    PluginSystem::CServiceRegistry other;
    Plugin::NerixWelcome::CNerixWelcomePlugin plugin(Policy::CUsagePolicy::Kind::OnThisComputer);
    QVERIFY(plugin.preInitialize(&other));
    CTestTab page("UsageTracking.NerixWelcome.DataPrivacy", true);
    findService<INerixWelcomeService>(&other)->addTab(&page);
    QCOMPARE(findService<CNerixWelcomeController>(&other)->tabs().size(), 1);
}

QTEST_MAIN(WelcomePluginTest)

#include "WelcomePluginTest.moc"
