// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/cameraselector/CameraSelectorPlugin.h"
#include "plugins/cameraselector/IDeviceSelectionService.h"

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CServiceRegistry.h>

#include <QSignalSpy>
#include <QTest>

using CameraSelector::IDeviceSelectionService;
using CameraSelector::IDeviceSelectorService;
using Core::CameraPoolComponents::DeviceBaseInfoPtr;
using Core::CameraPoolComponents::IDeviceBaseInfo;

class DeviceSelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testNothingIsSelectedAtFirst();
    void testEachChangeIsAnnouncedOnce();
    void testSelectingNothingIsAnnouncedAsNull();
    void testServiceGoesWithThePlugin();

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

void DeviceSelectionTest::testServiceGoesWithThePlugin()
{
    start();
    QVERIFY(Core::Plugin::findService<IDeviceSelectorService>(&m_registry));
    QVERIFY(m_plugin.uninitialize(&m_registry));
    QVERIFY(!Core::Plugin::findService<IDeviceSelectorService>(&m_registry));
}

QTEST_GUILESS_MAIN(DeviceSelectionTest)

#include "DeviceSelectionTest.moc"
