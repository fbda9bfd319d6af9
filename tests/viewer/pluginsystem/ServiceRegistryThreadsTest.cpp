// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CServiceRegistry.h>

#include <atomic>
#include <thread>
#include <vector>

#include <QTest>

using namespace PluginSystem;

namespace {

class CLastingService : public QObject
{
    Q_OBJECT
};

/// Notices in its destructor that it was destroyed while somebody may still use it.
class CShortLivedService : public QObject
{
    Q_OBJECT

public:
    ~CShortLivedService() override
    {
        value = 0;
    }

    int value = 7;
};

constexpr int rounds = 2000;
constexpr int readers = 3;

} // namespace

class ServiceRegistryThreadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testLookUpsWhileServicesComeAndGo();
    void testServicesAreAddedAndRemovedInSeveralThreads();
};

void ServiceRegistryThreadsTest::testLookUpsWhileServicesComeAndGo()
{
    CServiceRegistry registry;
    registry.addService(QSharedPointer<QObject>(new CLastingService));
    std::atomic<bool> isDone{false};
    std::atomic<int> lost{0};
    std::atomic<int> broken{0};
    std::vector<std::thread> threads;
    for (int reader = 0; reader < readers; ++reader) {
        threads.emplace_back([&] {
            while (!isDone) {
                lost += Core::Plugin::findService<CLastingService>(&registry) ? 0 : 1;
                const auto found = Core::Plugin::findServices<CShortLivedService>(&registry);
                for (const auto &service : found) {
                    broken += service->value == 7 ? 0 : 1;
                }
            }
        });
    }
    for (int round = 0; round < rounds; ++round) {
        const QSharedPointer<QObject> service(new CShortLivedService);
        registry.addService(service);
        registry.removeService(service);
    }
    isDone = true;
    for (std::thread &thread : threads) {
        thread.join();
    }

    QCOMPARE(lost.load(), 0);
    QCOMPARE(broken.load(), 0);
    QCOMPARE(registry.services().size(), 1);
}

void ServiceRegistryThreadsTest::testServicesAreAddedAndRemovedInSeveralThreads()
{
    CServiceRegistry registry;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < readers; ++writer) {
        threads.emplace_back([&] {
            const QSharedPointer<QObject> kept(new CLastingService);
            registry.addService(kept);
            for (int round = 0; round < rounds; ++round) {
                const QSharedPointer<QObject> service(new CShortLivedService);
                registry.addService(service);
                registry.removeService(service);
            }
        });
    }
    for (std::thread &thread : threads) {
        thread.join();
    }

    QCOMPARE(Core::Plugin::findServices<CLastingService>(&registry).size(), readers);
    QCOMPARE(registry.services().size(), readers);
}

QTEST_GUILESS_MAIN(ServiceRegistryThreadsTest)
#include "ServiceRegistryThreadsTest.moc"
