// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/ServiceLookup.h>

#include <pluginsystem/CPluginInitializer.h>
#include <pluginsystem/CServiceRegistry.h>

#include <QTest>

using namespace PluginSystem;
using Core::Plugin::findService;
using Core::Plugin::findServices;

namespace {

class CFirstService : public QObject
{
    Q_OBJECT
};

class CSecondService : public QObject
{
    Q_OBJECT
};

/// Finds out in its destructor whether the registry can be written to.
class CCuriousService : public QObject
{
    Q_OBJECT

public:
    CCuriousService(CServiceRegistry &registry, bool &couldWrite)
        : m_registry(registry)
        , m_couldWrite(couldWrite)
    {}

    ~CCuriousService() override
    {
        m_couldWrite = m_registry.serviceLock()->tryLockForWrite();
        if (m_couldWrite) {
            m_registry.serviceLock()->unlock();
        }
    }

private:
    CServiceRegistry &m_registry;
    bool &m_couldWrite;
};

} // namespace

class ServiceRegistryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testServicesAreFoundByTypeInTheOrderOfAdding();
    void testNullAndRepeatedServicesAreIgnored();
    void testRemovedServiceIsNotFoundAndLivesOnWithItsHolders();
    void testRemovingWhatIsNotThereIsIgnored();
    void testServiceIsDestroyedAfterTheLockIsReleased();
    void testServiceIsDestroyedAfterTheLockIsReleasedWhenTheReferenceIsTheListsOwn();
    void testClearRemovesTheLastOneFirstWithoutTheLock();
    void testServiceThatIsRemovedByTheDestructorOfAnother();
    void testEveryPluginSeesTheSameServices();
    void testPluginDropsItsOwnServicesOnly();
};

void ServiceRegistryTest::testServicesAreFoundByTypeInTheOrderOfAdding()
{
    CServiceRegistry registry;
    const QSharedPointer<QObject> one(new CFirstService);
    const QSharedPointer<QObject> two(new CSecondService);
    const QSharedPointer<QObject> three(new CFirstService);
    registry.addService(one);
    registry.addService(two);
    registry.addService(three);

    QCOMPARE(findService<CFirstService>(&registry).data(), one.data());
    QCOMPARE(findService<CSecondService>(&registry).data(), two.data());
    QVERIFY(!findService<CCuriousService>(&registry));
    const auto found = findServices<CFirstService>(&registry);
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).data(), one.data());
    QCOMPARE(found.at(1).data(), three.data());
}

void ServiceRegistryTest::testNullAndRepeatedServicesAreIgnored()
{
    CServiceRegistry registry;
    const QSharedPointer<QObject> one(new CFirstService);
    const QSharedPointer<QObject> two(new CSecondService);
    registry.addService({});
    registry.addService(one);
    registry.addService(two);
    registry.addService(one);

    QCOMPARE(registry.services(), (QList<QSharedPointer<QObject>>{one, two}));
}

void ServiceRegistryTest::testRemovedServiceIsNotFoundAndLivesOnWithItsHolders()
{
    CServiceRegistry registry;
    QSharedPointer<QObject> held(new CFirstService);
    const QWeakPointer<QObject> watched = held;
    registry.addService(held);
    registry.removeService(held);

    QVERIFY(!findService<CFirstService>(&registry));
    QVERIFY(watched.toStrongRef());
    held.reset();
    QVERIFY(!watched.toStrongRef());
}

void ServiceRegistryTest::testRemovingWhatIsNotThereIsIgnored()
{
    CServiceRegistry registry;
    const QSharedPointer<QObject> one(new CFirstService);
    registry.addService(one);
    registry.removeService({});
    registry.removeService(QSharedPointer<QObject>(new CFirstService));

    QCOMPARE(registry.services(), QList<QSharedPointer<QObject>>{one});
}

void ServiceRegistryTest::testServiceIsDestroyedAfterTheLockIsReleased()
{
    CServiceRegistry registry;
    bool couldWrite = false;
    QWeakPointer<QObject> watched;
    {
        const QSharedPointer<QObject> service(new CCuriousService(registry, couldWrite));
        watched = service;
        registry.addService(service);
    }
    registry.removeService(watched.toStrongRef());

    QVERIFY(!watched.toStrongRef());
    QVERIFY(couldWrite);
}

void ServiceRegistryTest::
    testServiceIsDestroyedAfterTheLockIsReleasedWhenTheReferenceIsTheListsOwn()
{
    CServiceRegistry registry;
    bool couldWrite = false;
    registry.addService(QSharedPointer<QObject>(new CCuriousService(registry, couldWrite)));
    registry.removeService(registry.services().first());

    QVERIFY(registry.services().isEmpty());
    QVERIFY(couldWrite);
}

void ServiceRegistryTest::testClearRemovesTheLastOneFirstWithoutTheLock()
{
    CServiceRegistry registry;
    bool couldWrite = false;
    QStringList destroyed;
    registry.addService(QSharedPointer<QObject>(new CCuriousService(registry, couldWrite)));
    for (const QString &name : {QStringLiteral("one"), QStringLiteral("two")}) {
        const QSharedPointer<QObject> service(new CFirstService);
        connect(service.data(), &QObject::destroyed, this, [&, name] { destroyed += name; });
        registry.addService(service);
    }
    registry.clear();

    QCOMPARE(destroyed, (QStringList{QStringLiteral("two"), QStringLiteral("one")}));
    QVERIFY(couldWrite);
    QVERIFY(registry.services().isEmpty());
}

void ServiceRegistryTest::testServiceThatIsRemovedByTheDestructorOfAnother()
{
    CServiceRegistry registry;
    const QSharedPointer<QObject> other(new CSecondService);
    registry.addService(other);
    {
        const QSharedPointer<QObject> service(new CFirstService);
        connect(service.data(), &QObject::destroyed, this, [&] { registry.removeService(other); });
        registry.addService(service);
    }
    registry.removeService(registry.services().last());

    QVERIFY(registry.services().isEmpty());
}

void ServiceRegistryTest::testEveryPluginSeesTheSameServices()
{
    CServiceRegistry registry;
    CPluginInitializer one(registry);
    CPluginInitializer two(registry);
    const QSharedPointer<QObject> service(new CFirstService);

    one.addService(service);
    QCOMPARE(two.serviceLock(), registry.serviceLock());
    QCOMPARE(findService<CFirstService>(&two).data(), service.data());

    one.removeService(service);
    QVERIFY(!findService<CFirstService>(&two));
}

void ServiceRegistryTest::testPluginDropsItsOwnServicesOnly()
{
    CServiceRegistry registry;
    CPluginInitializer one(registry);
    CPluginInitializer two(registry);
    const QSharedPointer<QObject> first(new CFirstService);
    const QSharedPointer<QObject> second(new CSecondService);
    const QSharedPointer<QObject> third(new CSecondService);
    one.addService(first);
    two.addService(second);
    one.addService(third);
    one.addService(third);
    one.addService({});
    one.removeService(first);

    QCOMPARE(one.dropServices(), 1);
    QCOMPARE(registry.services(), QList<QSharedPointer<QObject>>{second});
    QCOMPARE(one.dropServices(), 0);
}

QTEST_GUILESS_MAIN(ServiceRegistryTest)
#include "ServiceRegistryTest.moc"
