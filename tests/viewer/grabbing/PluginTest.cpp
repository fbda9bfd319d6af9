// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/appcore/CMenuService.h"
#include "plugins/cameraselector/CDeviceSelectionService.h"
#include "plugins/grabbing/GrabbingPlugin.h"
#include "support/CFakeCameraControl.h"
#include "support/CFakeCameraStatus.h"
#include "support/CFakeMainWindow.h"

#include <pluginsystem/CServiceRegistry.h>

#include <memory>

#include <QLabel>
#include <QLocale>
#include <QTest>

using CameraPool::ICameraControlService;
using Plugin::AppCore::CMenuService;
using Plugin::AppCore::IMenuControlService;

// The plug-in among the services of others: its entries, keys, tool bar and status bar.
class PluginTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testEntriesStandInTheCameraMenu();
    void testKeys();
    void testEntriesAreEnabledAsTheCameraAllows();
    void testEntriesGrab_data();
    void testEntriesGrab();
    void testToolBarHasTheEntriesWithIcons();
    void testStatusBarShowsTheFigures();
    void testWithoutAWindowThereAreTheEntries();
    void testTakesAllAwayAtTheEnd();
    void testNeedsTheCameraPool();

private:
    void start();
    QAction *action(const char *text) const;
    QStringList statusTexts() const;

    QSharedPointer<CFakeCameraControl> m_control;
    QSharedPointer<CFakeCameraStatus> m_status;
    QSharedPointer<CameraSelector::CDeviceSelectionService> m_selection;
    QSharedPointer<CMenuService> m_menus;
    QSharedPointer<CFakeMainWindow> m_window;
    std::unique_ptr<PluginSystem::CServiceRegistry> m_registry;
    std::unique_ptr<Grabbing::CGrabbingPlugin> m_plugin;
    CFakeCameraControl::CameraInfoPtr m_camera;
};

void PluginTest::init()
{
    QLocale::setDefault(QLocale("en_US"));
    m_control = QSharedPointer<CFakeCameraControl>::create();
    m_status = QSharedPointer<CFakeCameraStatus>::create();
    m_selection = QSharedPointer<CameraSelector::CDeviceSelectionService>::create();
    m_menus = QSharedPointer<CMenuService>::create();
    m_menus->createActionContainer(Core::CId("NerixViewer.Menu.Camera"), "&Camera");
    m_window = QSharedPointer<CFakeMainWindow>::create();
    m_registry = std::make_unique<PluginSystem::CServiceRegistry>();
    m_registry->addService(m_control);
    m_registry->addService(m_status);
    m_registry->addService(m_selection);
    m_registry->addService(m_menus);
    m_plugin = std::make_unique<Grabbing::CGrabbingPlugin>();
    m_camera = m_control->plugIn("A");
    m_selection->select(m_camera);
}

void PluginTest::cleanup()
{
    m_plugin->uninitialize(m_registry.get());
    m_plugin.reset();
}

void PluginTest::start()
{
    m_registry->addService(m_window);
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    QVERIFY(m_plugin->initialize());
}

QAction *PluginTest::action(const char *text) const
{
    for (QAction *action : m_window->toolBarActions) {
        if (action->text() == QLatin1String(text)) {
            return action;
        }
    }
    return nullptr;
}

QStringList PluginTest::statusTexts() const
{
    QStringList texts;
    const auto labels = m_window->statusWidgets.value(0)->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        texts.append(label->text());
    }
    return texts;
}

void PluginTest::testEntriesStandInTheCameraMenu()
{
    start();
    QStringList found;
    const auto entries = m_menus->entries();
    for (const auto &entry : entries) {
        found.append(entry.id.toString() + u'|' + entry.text + u'|' + entry.menu.toString() + u'|'
                     + entry.group.toString());
    }
    const QString place = "|NerixViewer.Menu.Camera|NerixViewer.Group.Camera.Grab";
    QCOMPARE(found, (QStringList{"Grabbing.Action.GrabSingle|Grab Single Image" + place,
                                 "Grabbing.Action.GrabContinuous|Grab Continuously" + place,
                                 "Grabbing.Action.Stop|Stop Grabbing" + place}));
}

void PluginTest::testKeys()
{
    start();
    QCOMPARE(action("Grab Single &Image")->shortcut().toString(), QString("F6"));
    QCOMPARE(action("&Grab Continuously")->shortcut().toString(), QString("F5"));
    QCOMPARE(action("&Stop Grabbing")->shortcut().toString(), QString("Shift+F5"));
}

void PluginTest::testEntriesAreEnabledAsTheCameraAllows()
{
    start();
    QVERIFY(!action("Grab Single &Image")->isEnabled());
    QVERIFY(!action("&Grab Continuously")->isEnabled());
    QVERIFY(!action("&Stop Grabbing")->isEnabled());

    m_control->setState(m_camera, ICameraControlService::Open);
    Q_EMIT m_status->deviceOpened(m_camera);
    QVERIFY(action("Grab Single &Image")->isEnabled());
    QVERIFY(action("&Grab Continuously")->isEnabled());
    QVERIFY(!action("&Stop Grabbing")->isEnabled());

    m_control->setState(m_camera, ICameraControlService::Grabbing);
    Q_EMIT m_status->cameraGrabStarted(m_camera);
    QVERIFY(!action("Grab Single &Image")->isEnabled());
    QVERIFY(!action("&Grab Continuously")->isEnabled());
    QVERIFY(action("&Stop Grabbing")->isEnabled());
}

void PluginTest::testEntriesGrab_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("request");

    QTest::newRow("single") << QByteArray("Grabbing.Action.GrabSingle")
                            << int(ICameraControlService::Open) << "single";
    QTest::newRow("continuous") << QByteArray("Grabbing.Action.GrabContinuous")
                                << int(ICameraControlService::Open) << "continuous";
    QTest::newRow("stop") << QByteArray("Grabbing.Action.Stop")
                          << int(ICameraControlService::Grabbing) << "stop";
}

void PluginTest::testEntriesGrab()
{
    QFETCH(QByteArray, id);
    QFETCH(int, state);
    m_control->setState(m_camera, ICameraControlService::CameraState(state));
    QString request;
    m_control->onGrabRequest = [&](const QString &operation, const auto &) { request = operation; };
    start();
    QCOMPARE(int(m_menus->trigger(Core::CId(id.constData()))),
             int(IMenuControlService::TriggerResult::Triggered));
    QTEST(request, "request");
}

void PluginTest::testToolBarHasTheEntriesWithIcons()
{
    start();
    QCOMPARE(m_window->toolBarActions.size(), 3);
    for (const auto &entry : m_window->toolBarActions) {
        QVERIFY(!entry->icon().isNull());
    }
}

void PluginTest::testStatusBarShowsTheFigures()
{
    start();
    QCOMPARE(statusTexts(), (QStringList{"", "", "", ""}));
    Q_EMIT m_status->cameraGrabStarted(m_camera);
    QCOMPARE(statusTexts(), (QStringList{"Images: 0", "Failed: 0", "", ""}));
    Q_EMIT m_status->cameraStatisticUpdated(m_camera, 120, 3, 59.94, 124292000, {});
    QCOMPARE(statusTexts(),
             (QStringList{"Images: 120", "Failed: 3", "59.9 images/s", "124.3 MB/s"}));
    Q_EMIT m_status->cameraGrabStopped(m_camera);
    QCOMPARE(statusTexts(), (QStringList{"Images: 120", "Failed: 3", "", ""}));
    m_selection->select({});
    QCOMPARE(statusTexts(), (QStringList{"", "", "", ""}));
}

void PluginTest::testWithoutAWindowThereAreTheEntries()
{
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    QVERIFY(m_plugin->initialize());
    QCOMPARE(m_menus->entries().size(), 3);
}

void PluginTest::testTakesAllAwayAtTheEnd()
{
    start();
    QVERIFY(m_plugin->uninitialize(m_registry.get()));
    QVERIFY(m_menus->entries().isEmpty());
    QVERIFY(m_window->statusWidgets.value(0).isNull());
    QVERIFY(m_window->toolBarActions.value(0).isNull());
}

void PluginTest::testNeedsTheCameraPool()
{
    m_registry->removeService(m_control);
    QVERIFY(m_plugin->preInitialize(m_registry.get()));
    QVERIFY(!m_plugin->initialize());
}

QTEST_MAIN(PluginTest)
#include "PluginTest.moc"
