// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/NerixViewerPlugin.h"

#include "plugins/appcore/AppCorePlugin.h"
#include "plugins/appcore/IMenuControlService.h"
#include "plugins/nerixviewer/IApplicationService.h"
#include "support/Texts.h"

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CServiceRegistry.h>

#include <QMenu>
#include <QSignalSpy>
#include <QTest>

using Plugin::AppCore::IMenuControlService;
using Plugin::NerixViewer::IApplicationService;

class NerixViewerPluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testMakesTheFourMenus();
    void testHelpMenuHasTheSupportGroup();
    void testQuitEntryRequestsToQuit();
    void testNeedsTheMenuService();
    void testTakesItsEntriesAndServicesAway();

private:
    QScopedPointer<PluginSystem::CServiceRegistry> m_registry;
    QScopedPointer<Plugin::AppCore::CAppCorePlugin> m_appCore;
    QScopedPointer<Plugin::NerixViewer::CNerixViewerPlugin> m_plugin;
};

void NerixViewerPluginTest::init()
{
    m_registry.reset(new PluginSystem::CServiceRegistry);
    m_appCore.reset(new Plugin::AppCore::CAppCorePlugin);
    m_plugin.reset(new Plugin::NerixViewer::CNerixViewerPlugin(
        Plugin::NerixViewer::WindowMode::WithoutWindows));
    QVERIFY(m_appCore->preInitialize(m_registry.data()));
    QVERIFY(m_plugin->preInitialize(m_registry.data()));
    QVERIFY(m_appCore->initialize());
    QVERIFY(m_plugin->initialize());
}

void NerixViewerPluginTest::cleanup()
{
    m_plugin.reset();
    m_appCore.reset();
    m_registry.reset();
}

void NerixViewerPluginTest::testMakesTheFourMenus()
{
    const auto menus = Core::Plugin::findService<IMenuControlService>(m_registry.data())->menus();
    QStringList ids;
    QStringList titles;
    for (const QMenu *menu : menus) {
        ids.append(menu->objectName());
        titles.append(menu->title());
    }
    QCOMPARE(ids, texts({"NerixViewer.Menu.File", "NerixViewer.Menu.Camera",
                         "NerixViewer.Menu.View", "NerixViewer.Menu.Help"}));
    QCOMPARE(titles, texts({"&File", "&Camera", "&View", "&Help"}));
}

void NerixViewerPluginTest::testHelpMenuHasTheSupportGroup()
{
    const auto service = Core::Plugin::findService<IMenuControlService>(m_registry.data());
    const QMenu *help = service->menus().at(3);
    const int before = help->actions().size();
    service->addGroup(Core::CId("NerixViewer.Menu.Help"),
                      Core::CId("NerixViewer.Group.Help.Support"));
    QCOMPARE(before, 3);
    QCOMPARE(help->actions().size(), before);
}

void NerixViewerPluginTest::testQuitEntryRequestsToQuit()
{
    const auto service = Core::Plugin::findService<IMenuControlService>(m_registry.data());
    const auto application = Core::Plugin::findService<IApplicationService>(m_registry.data());
    const QSignalSpy requested(application.data(), &IApplicationService::quitRequested);

    const auto entry = service->entries().at(0);
    QCOMPARE(entry.id, Core::CId("NerixViewer.Action.Quit"));
    QCOMPARE(entry.menu, Core::CId("NerixViewer.Menu.File"));
    QCOMPARE(entry.text, QStringLiteral("Quit"));
    QCOMPARE(service->trigger(entry.id), IMenuControlService::TriggerResult::Triggered);
    QCOMPARE(requested.count(), 1);
}

void NerixViewerPluginTest::testNeedsTheMenuService()
{
    PluginSystem::CServiceRegistry empty;
    Plugin::NerixViewer::CNerixViewerPlugin plugin(Plugin::NerixViewer::WindowMode::WithoutWindows);
    QVERIFY(plugin.preInitialize(&empty));
    QVERIFY(!plugin.initialize());
    QVERIFY(plugin.uninitialize(&empty));
}

void NerixViewerPluginTest::testTakesItsEntriesAndServicesAway()
{
    const auto service = Core::Plugin::findService<IMenuControlService>(m_registry.data());
    QVERIFY(m_plugin->uninitialize(m_registry.data()));
    QVERIFY(service->entries().isEmpty());
    QVERIFY(!Core::Plugin::findService<IApplicationService>(m_registry.data()));
}

QTEST_MAIN(NerixViewerPluginTest)

#include "NerixViewerPluginTest.moc"
