// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/cameraselector/CameraSelectorPlugin.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "support/CFakeCameraControl.h"
#include "support/CMessageCount.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CServiceRegistry.h>

#include <QSignalSpy>
#include <QTest>

using CameraSelector::IDeviceSelectionService;
using CameraSelector::IDeviceSelectorService;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;
using Core::CameraPoolComponents::IDeviceBaseInfo;

// A search that ends when the test says so.
class CSearch : public CameraPool::ICameraEnumerationService
{
    Q_OBJECT
};

class DeviceSelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testNothingIsSelectedAtFirst();
    void testEachChangeIsAnnouncedOnce();
    void testSelectingNothingIsAnnouncedAsNull();
    void testNewDescriptionOfTheSameCameraIsNoChange();
    void testServiceGoesWithThePlugin();
    void testFirstSearchWithoutACameraSaysWhatToDo();
    void testLaterSearchesSayNothing();
    void testSearchThatFindsACameraSaysNothing();

private:
    QSharedPointer<IDeviceSelectionService> start();

    PluginSystem::CServiceRegistry m_registry;
    CameraSelector::CCameraSelectorPlugin m_plugin;
};

QSharedPointer<IDeviceSelectionService> DeviceSelectionTest::start()
{
    m_plugin.preInitialize(&m_registry);
    m_plugin.initialize();
    const auto service = Core::Plugin::findService<IDeviceSelectionService>(&m_registry);
    service->select({});
    return service;
}

void DeviceSelectionTest::testNothingIsSelectedAtFirst()
{
    QVERIFY(start()->selected().isNull());
}

void DeviceSelectionTest::testEachChangeIsAnnouncedOnce()
{
    const auto service = start();
    const QSignalSpy changed(service.data(), &IDeviceSelectorService::selectionChanged);
    const auto first = DeviceBaseInfoPtr::create();
    const auto second = DeviceBaseInfoPtr::create();
    service->select(first);
    service->select(first);
    service->select(second);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).value<DeviceBaseInfoPtr>(), first);
    QCOMPARE(changed.at(1).at(0).value<DeviceBaseInfoPtr>(), second);
    QCOMPARE(service->selected(), second);
}

void DeviceSelectionTest::testSelectingNothingIsAnnouncedAsNull()
{
    const auto service = start();
    service->select(DeviceBaseInfoPtr::create());
    const QSignalSpy changed(service.data(), &IDeviceSelectorService::selectionChanged);
    service->select({});
    QCOMPARE(changed.count(), 1);
    QVERIFY(changed.at(0).at(0).value<DeviceBaseInfoPtr>().isNull());
}

void DeviceSelectionTest::testNewDescriptionOfTheSameCameraIsNoChange()
{
    CFakeCameraControl control;
    const auto service = start();
    const auto camera = control.plugIn("A-1");
    service->select(camera);
    const QSignalSpy changed(service.data(), &IDeviceSelectorService::selectionChanged);
    const auto renamed = control.rename(camera, "Left of the belt");
    service->select(renamed);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(service->selected(), DeviceBaseInfoPtr(renamed));
    service->select(control.plugIn("A-2"));
    QCOMPARE(changed.count(), 1);
}

void DeviceSelectionTest::testServiceGoesWithThePlugin()
{
    start();
    QVERIFY(Core::Plugin::findService<IDeviceSelectorService>(&m_registry));
    QVERIFY(m_plugin.uninitialize(&m_registry));
    QVERIFY(!Core::Plugin::findService<IDeviceSelectorService>(&m_registry));
}

namespace {

constexpr char noCamera[] =
    "no camera found: plug one in, and check its power and that its address is in a network of "
    "this computer; the viewer goes on looking";

// The plug-in with a camera pool of the test.
struct CPluginWithPool
{
    CPluginWithPool()
    {
        registry.addService(search);
        registry.addService(control);
        plugin.preInitialize(&registry);
        plugin.initialize();
    }

    QSharedPointer<CSearch> search = QSharedPointer<CSearch>::create();
    QSharedPointer<CFakeCameraControl> control = QSharedPointer<CFakeCameraControl>::create();
    PluginSystem::CServiceRegistry registry;
    CameraSelector::CCameraSelectorPlugin plugin;
};

} // namespace

void DeviceSelectionTest::testFirstSearchWithoutACameraSaysWhatToDo()
{
    const CPluginWithPool pool;
    QTest::ignoreMessage(QtInfoMsg, noCamera);
    Q_EMIT pool.search->enumerationChanged();
}

void DeviceSelectionTest::testLaterSearchesSayNothing()
{
    const CPluginWithPool pool;
    QTest::ignoreMessage(QtInfoMsg, noCamera);
    Q_EMIT pool.search->enumerationChanged();
    const CMessageCount messages;
    Q_EMIT pool.search->enumerationChanged();
    QCOMPARE(messages.count(), 0);
}

void DeviceSelectionTest::testSearchThatFindsACameraSaysNothing()
{
    const CPluginWithPool pool;
    pool.control->plugIn("A-1");
    const CMessageCount messages;
    Q_EMIT pool.search->enumerationChanged();
    QCOMPARE(messages.count(), 0);
}

QTEST_GUILESS_MAIN(DeviceSelectionTest)

#include "DeviceSelectionTest.moc"
