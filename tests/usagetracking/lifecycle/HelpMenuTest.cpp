// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// The tab on the welcome screen and the entry in the Help menu.

#include "MessageLog.h"
#include "PluginFixture.h"
#include "TestMain.h"

using Probe = Plugin::UsageTracking::UsageTrackingPluginProbe;

class HelpMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        storeKeys(QVariant(), QVariant());
    }

    void welcomeServiceGetsTheTab()
    {
        PluginFixture f;
        f.initialize();
        QCOMPARE(f.host.welcome->tabs.size(), 1);
        QCOMPARE(f.host.welcome->tabs.at(0).data(), Probe::tab(*f.plugin));
    }

    void helpMenuEntryIsRegisteredInOrder()
    {
        PluginFixture f;
        f.initialize();
        QCOMPARE(f.host.menu->calls,
                 QStringList(
                     {"findActionContainer(NerixViewer.Menu.Help)",
                      "registerAction(Data Privacy | UsageTracking.DataPrivacy | "
                      "AppCore.Global.Context)",
                      "addCommand(UsageTracking.DataPrivacy | NerixViewer.Group.Help.Support)"}));
        QCOMPARE(f.host.menu->registeredAction->parent(), f.plugin.get());
    }

    void helpMenuEntryHasTheShieldOfItsResources()
    {
        PluginFixture f;
        f.initialize();
        const QImage shield = QIcon(QStringLiteral(NERIX_SHIELD)).pixmap(16).toImage();
        QVERIFY(!shield.isNull());
        QCOMPARE(f.host.menu->registeredAction->icon().pixmap(16).toImage(), shield);
        QVERIFY(QFile::exists(QStringLiteral(":/usagetracking/resources/shield_blue_16.svg")));
    }

    void helpMenuEntryShowsTheTabForThePlugin()
    {
        PluginFixture f;
        f.initialize();
        f.host.menu->registeredAction->trigger();
        QCOMPARE(f.host.welcome->shownTabs.size(), 1);
        QCOMPARE(f.host.welcome->shownTabs.at(0).data(), Probe::tab(*f.plugin));
        QCOMPARE(f.host.welcome->requesters.at(0).data(), f.plugin.get());
    }

    void withoutAWelcomeServiceTheEntryDoesNothing()
    {
        PluginFixture f;
        f.host.removeService(f.host.welcome);
        const MessageLog log;
        QCOMPARE(f.initialize(), true);
        f.host.menu->registeredAction->trigger();
        QCOMPARE(f.host.welcome->tabs.size(), 0);
        QCOMPARE(f.host.welcome->shownTabs.size(), 0);
        QCOMPARE(log.texts(), QStringList());
    }

    void withoutAMenuServiceThereIsNoEntryAndNoWord()
    {
        PluginFixture f;
        f.host.removeService(f.host.menu);
        const MessageLog log;
        QCOMPARE(f.initialize(), true);
        QCOMPARE(f.host.menu->calls, QStringList());
        QVERIFY(!f.plugin->findChild<QAction *>());
        QCOMPARE(log.texts(), QStringList());
    }
};

NERIX_TEST_MAIN(HelpMenuTest)
#include "HelpMenuTest.moc"
