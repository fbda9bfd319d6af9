// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Which of the host's services the provider takes.

#include "TestMain.h"
#include "TrackingFixture.h"

using CameraPool::ICameraEnumerationService;
using CameraPool::ICameraStatusService;
using CameraSelector::IDeviceSelectorService;

class ServicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void servicesAreFoundUnderTheReadLockOnly()
    {
        const TrackingFixture f;
        QVERIFY(f.servicesFound);
        QCOMPARE(f.host.unlockedWalks, 0);
    }

    void everyRequiredServiceIsMissed_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<bool>("found");
        QTest::newRow("nothing missing") << QString() << true;
        QTest::newRow("device selector is required") << "selector" << false;
        QTest::newRow("camera status is required") << "status" << false;
        QTest::newRow("enumeration is required") << "enumeration" << false;
        QTest::newRow("parameter service is required") << "parameters" << false;
        QTest::newRow("feature trees are not required") << "trees" << true;
    }

    void everyRequiredServiceIsMissed()
    {
        QFETCH(QString, missing);
        FakeHost host;
        const QMap<QString, QSharedPointer<QObject>> services{
            {QStringLiteral("selector"), host.deviceSelector},
            {QStringLiteral("status"), host.cameraStatus},
            {QStringLiteral("enumeration"), host.enumeration},
            {QStringLiteral("parameters"), host.parameterService},
            {QStringLiteral("trees"), host.featureTree},
        };
        host.removeService(services.value(missing));
        Plugin::UsageTracking::Internal::CUsageTrackingProvider provider;
        QTEST(provider.acquireServices(&host), "found");
    }

    void firstServiceOfEachInterfaceIsTaken()
    {
        const auto selector = QSharedPointer<FakeDeviceSelectorService>::create();
        const auto cameras = QSharedPointer<FakeCameraStatusService>::create();
        const auto enumeration = QSharedPointer<FakeEnumerationService>::create();
        const auto parameters = QSharedPointer<FakeParameterService>::create();
        TrackingFixture f;
        for (const QSharedPointer<QObject> &second :
             {QSharedPointer<QObject>(selector), QSharedPointer<QObject>(cameras),
              QSharedPointer<QObject>(enumeration), QSharedPointer<QObject>(parameters)}) {
            f.host.addService(second);
        }
        f.inTrackingThread([&] { f.provider->acquireServices(&f.host); });
        f.start();

        const auto selected = &IDeviceSelectorService::selectionChanged;
        QCOMPARE(f.host.deviceSelector->receiverCount(selected), 1);
        QCOMPARE(selector->receiverCount(selected), 0);
        const auto connected = &ICameraStatusService::deviceConnected;
        QCOMPARE(f.host.cameraStatus->receiverCount(connected), 1);
        QCOMPARE(cameras->receiverCount(connected), 0);
        const auto enumerated = &ICameraEnumerationService::enumerationChanged;
        QCOMPARE(f.host.enumeration->receiverCount(enumerated), 1);
        QCOMPARE(enumeration->receiverCount(enumerated), 0);
        f.openCamera(f.host.makeCamera("A"));
        QCOMPARE(f.host.parameterService->fetches, 1);
        QCOMPARE(parameters->fetches, 0);
    }

    void laterAcquisitionReplacesTheFeatureTrees()
    {
        TrackingFixture f;
        const auto later = QSharedPointer<FakeFeatureTreeService>::create();
        f.host.removeService(f.host.featureTree);
        f.host.addService(later);
        f.inTrackingThread([&] { f.provider->acquireServices(&f.host); });
        f.start();
        const auto chosen = &FeatureTree::IFeatureTreeStatusService::currentChanged;
        QCOMPARE(f.host.featureTree->receiverCount(chosen), 0);
        QCOMPARE(later->receiverCount(chosen), 1);
    }
};

NERIX_TEST_MAIN(ServicesTest)
#include "ServicesTest.moc"
