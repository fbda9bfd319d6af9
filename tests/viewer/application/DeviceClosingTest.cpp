// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/DeviceClosing.h"

#include "support/CFakeCameraControl.h"

#include <pluginsystem/CServiceRegistry.h>

#include <QTest>
#include <QThread>

using Application::closeDevices;
using Application::Waiting;

class DeviceClosingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testWithoutACameraPoolThereIsNothingToClose();
    void testReturnsWhenAllAreClosed();
    void testThisThreadWorksOnMeanwhile();
};

void DeviceClosingTest::testWithoutACameraPoolThereIsNothingToClose()
{
    closeDevices(PluginSystem::CServiceRegistry(), Waiting::WithEvents, [] { return false; });
}

void DeviceClosingTest::testReturnsWhenAllAreClosed()
{
    PluginSystem::CServiceRegistry registry;
    const auto control = QSharedPointer<CFakeCameraControl>::create();
    registry.addService(control);
    closeDevices(registry, Waiting::WithEvents, [] { return false; });
    QCOMPARE(control->closeAllCount(), 1);
}

// A plug-in may have to answer the pool in this thread before it lets its device go.
void DeviceClosingTest::testThisThreadWorksOnMeanwhile()
{
    PluginSystem::CServiceRegistry registry;
    const auto control = QSharedPointer<CFakeCameraControl>::create();
    control->setClosesAll(false);
    registry.addService(control);

    QObject inThisThread;
    QScopedPointer<QThread> pool(QThread::create([&] {
        QMetaObject::invokeMethod(
            &inThisThread, [] {}, Qt::BlockingQueuedConnection);
        Q_EMIT control->allClosed();
    }));
    QMetaObject::invokeMethod(
        &inThisThread, [&] { pool->start(); }, Qt::QueuedConnection);
    closeDevices(registry, Waiting::WithEvents, [] { return false; });
    QVERIFY(pool->wait());
}

QTEST_GUILESS_MAIN(DeviceClosingTest)

#include "DeviceClosingTest.moc"
