// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/BuiltInPlugins.h"

#include "application/CommandLine.h"
#include "support/CSettingsSandbox.h"
#include "support/Texts.h"

#include <pluginsystem/CPluginManager.h>

#include <QTest>

class BuiltInPluginsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testHasTheTenThatAPluginCanCountOn();
    void testEachStandsInForVersionsSinceSevenZero();
    void testAllRunAndEnd();
};

namespace {

void start(PluginSystem::CPluginManager &manager, const CSettingsSandbox &sandbox)
{
    Application::CommandLine commandLine;
    commandLine.settingsFolder = sandbox.path();
    addBuiltInPlugins(manager, commandLine);
}

} // namespace

void BuiltInPluginsTest::testHasTheTenThatAPluginCanCountOn()
{
    const CSettingsSandbox sandbox;
    PluginSystem::CPluginManager manager;
    start(manager, sandbox);
    QStringList names;
    const auto plugins = manager.plugins();
    for (const auto *plugin : plugins) {
        names.append(plugin->name());
    }
    const QStringList counted =
        texts({"AppCore", "CameraPool", "CameraSelector", "FeatureTree", "Help", "Localization",
               "NerixViewer", "NerixWelcome", "ParameterCollectionPool", "Settings"});
    for (const QString &name : counted) {
        QCOMPARE(names.count(name), 1);
    }
}

void BuiltInPluginsTest::testEachStandsInForVersionsSinceSevenZero()
{
    const CSettingsSandbox sandbox;
    PluginSystem::CPluginManager manager;
    start(manager, sandbox);
    const auto plugins = manager.plugins();
    for (const auto *plugin : plugins) {
        QCOMPARE(plugin->metaData().version, QVersionNumber(7, 1, 0));
        QCOMPARE(plugin->metaData().compatVersion, QVersionNumber(7, 0, 0));
        QVERIFY(plugin->metaData().required);
        QVERIFY(!plugin->metaData().description.isEmpty());
    }
}

void BuiltInPluginsTest::testAllRunAndEnd()
{
    const CSettingsSandbox sandbox;
    PluginSystem::CPluginManager manager;
    start(manager, sandbox);
    manager.start();
    QCoreApplication::processEvents();
    const auto plugins = manager.plugins();
    for (const auto *plugin : plugins) {
        QCOMPARE(plugin->error(), QString());
        QCOMPARE(plugin->state(), PluginSystem::PluginState::Running);
    }
    manager.shutDown();
    for (const auto *plugin : plugins) {
        QCOMPARE(plugin->error(), QString());
        QCOMPARE(plugin->state(), PluginSystem::PluginState::Deleted);
    }
}

QTEST_MAIN(BuiltInPluginsTest)

#include "BuiltInPluginsTest.moc"
