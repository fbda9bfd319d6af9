// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/ServiceLookup.h>

#include <atomic>
#include <thread>

#include <QTest>

using Core::Plugin::findService;
using Core::Plugin::findServices;

namespace {

class CService : public QObject
{
    Q_OBJECT
};

class COtherService : public QObject
{
    Q_OBJECT
};

/// An interface that is no QObject.
class IName
{
public:
    virtual ~IName() = default;
    virtual QString name() const = 0;
};

class CNamedService : public CService, public IName
{
    Q_OBJECT

public:
    QString name() const override
    {
        return QStringLiteral("named");
    }
};

/// Notes how the lock is held each time the services are read.
class CWatchfulInitializer : public Core::Plugin::IPluginInitializer
{
    Q_OBJECT

public:
    QReadWriteLock *serviceLock() const override
    {
        return &lock;
    }

    const QList<QSharedPointer<QObject>> &services() const override
    {
        // In another thread, since a thread may always ask again for what it has.
        std::thread([this] {
            othersMayRead = tryAndUnlock(lock.tryLockForRead());
            othersMayWrite = tryAndUnlock(lock.tryLockForWrite());
        }).join();
        ++walks;
        return list;
    }

    void addService(const QSharedPointer<QObject> &service) override
    {
        list.append(service);
    }
    void removeService(const QSharedPointer<QObject> &service) override
    {
        list.removeAll(service);
    }

    bool tryAndUnlock(bool isLocked) const
    {
        if (isLocked) {
            lock.unlock();
        }
        return isLocked;
    }

    mutable QReadWriteLock lock;
    mutable std::atomic<bool> othersMayRead{false};
    mutable std::atomic<bool> othersMayWrite{true};
    mutable int walks = 0;
    QList<QSharedPointer<QObject>> list;
};

} // namespace

class ServiceLookupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void testFirstOfAKindIsFound();
    void testAllOfAKindAreFoundInTheOrderOfTheRegistry();
    void testNothingIsFound_data();
    void testNothingIsFound();
    void testServiceIsFoundByEveryInterfaceThatItHas();
    void testFoundServiceIsSharedWithTheRegistry();
    void testWalkHoldsTheReadLock();
    void testLockIsReleasedAfterwards();
};

void ServiceLookupTest::testFirstOfAKindIsFound()
{
    CWatchfulInitializer initializer;
    const QSharedPointer<QObject> first(new CService);
    initializer.list = {QSharedPointer<QObject>(new COtherService), first,
                        QSharedPointer<QObject>(new CService)};

    QCOMPARE(findService<CService>(&initializer).data(), first.data());
}

void ServiceLookupTest::testAllOfAKindAreFoundInTheOrderOfTheRegistry()
{
    CWatchfulInitializer initializer;
    const QSharedPointer<QObject> first(new CService);
    const QSharedPointer<QObject> second(new CNamedService);
    const QSharedPointer<QObject> third(new CService);
    initializer.list = {first, QSharedPointer<QObject>(new COtherService), second, third};

    const auto found = findServices<CService>(&initializer);

    QCOMPARE(found.size(), 3);
    QCOMPARE(found.at(0).data(), first.data());
    QCOMPARE(found.at(1).data(), second.data());
    QCOMPARE(found.at(2).data(), third.data());
}

void ServiceLookupTest::testNothingIsFound_data()
{
    QTest::addColumn<bool>("hasInitializer");
    QTest::addColumn<bool>("hasOtherService");

    QTest::newRow("without an initializer") << false << false;
    QTest::newRow("among no services") << true << false;
    QTest::newRow("among services of other kinds") << true << true;
}

void ServiceLookupTest::testNothingIsFound()
{
    QFETCH(bool, hasInitializer);
    QFETCH(bool, hasOtherService);
    CWatchfulInitializer initializer;
    if (hasOtherService) {
        initializer.list = {QSharedPointer<QObject>(new COtherService)};
    }
    const CWatchfulInitializer *asked = hasInitializer ? &initializer : nullptr;

    QVERIFY(!findService<CService>(asked));
    QVERIFY(findServices<CService>(asked).isEmpty());
}

void ServiceLookupTest::testServiceIsFoundByEveryInterfaceThatItHas()
{
    CWatchfulInitializer initializer;
    const QSharedPointer<QObject> service(new CNamedService);
    initializer.list = {service};

    QVERIFY(findService<CNamedService>(&initializer));
    QVERIFY(findService<CService>(&initializer));
    QVERIFY(findService<QObject>(&initializer));
    QCOMPARE(findService<IName>(&initializer)->name(), QStringLiteral("named"));
}

void ServiceLookupTest::testFoundServiceIsSharedWithTheRegistry()
{
    CWatchfulInitializer initializer;
    initializer.list = {QSharedPointer<QObject>(new CNamedService)};
    QSharedPointer<IName> found = findService<IName>(&initializer);
    const QWeakPointer<QObject> watched = initializer.list.at(0);

    initializer.list.clear();
    QVERIFY(watched.toStrongRef());
    found.reset();
    QVERIFY(!watched.toStrongRef());
}

void ServiceLookupTest::testWalkHoldsTheReadLock()
{
    CWatchfulInitializer initializer;

    findService<CService>(&initializer);

    QCOMPARE(initializer.walks, 1);
    QVERIFY(initializer.othersMayRead);
    QVERIFY(!initializer.othersMayWrite);
}

void ServiceLookupTest::testLockIsReleasedAfterwards()
{
    CWatchfulInitializer initializer;
    initializer.list = {QSharedPointer<QObject>(new CService)};

    const auto found = findServices<CService>(&initializer);

    QCOMPARE(found.size(), 1);
    QVERIFY(initializer.tryAndUnlock(initializer.lock.tryLockForWrite()));
}

QTEST_GUILESS_MAIN(ServiceLookupTest)
#include "ServiceLookupTest.moc"
