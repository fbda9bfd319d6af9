// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/FeatureTreePlugin.h"
#include "plugins/featuretree/IFeatureSelectionService.h"

#include <Core/Plugin/ServiceLookup.h>

#include <FakeParameters.h>
#include <pluginsystem/CServiceRegistry.h>

#include <QSignalSpy>
#include <QTest>

using FeatureTree::IFeatureSelectionService;
using FeatureTree::IFeatureTreeStatusService;
using ParameterCollection::IParameter;

class FeatureSelectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void testNoFeatureIsCurrentAtFirst();
    void testEachChangeIsAnnouncedOnce();
    void testNullIsIgnored();
    void testServiceGoesWithThePlugin();

private:
    PluginSystem::CServiceRegistry m_registry;
    QScopedPointer<FeatureTree::CFeatureTreePlugin> m_plugin;
    QSharedPointer<IFeatureSelectionService> m_service;
};

namespace {

QSharedPointer<IParameter> parameter(const char *fullName)
{
    return QSharedPointer<FakeParameterOf<IParameter>>::create(QString::fromLatin1(fullName));
}

} // namespace

void FeatureSelectionTest::init()
{
    m_plugin.reset(new FeatureTree::CFeatureTreePlugin);
    QVERIFY(m_plugin->preInitialize(&m_registry));
    QVERIFY(m_plugin->initialize());
    m_service = Core::Plugin::findService<IFeatureSelectionService>(&m_registry);
}

void FeatureSelectionTest::cleanup()
{
    m_service.reset();
    m_plugin->uninitialize(&m_registry);
    m_plugin.reset();
}

void FeatureSelectionTest::testNoFeatureIsCurrentAtFirst()
{
    QVERIFY(m_service->current().isNull());
}

void FeatureSelectionTest::testEachChangeIsAnnouncedOnce()
{
    const QSignalSpy changed(m_service.data(), &IFeatureTreeStatusService::currentChanged);
    const auto gain = parameter("@CameraDevice/Gain");
    const auto width = parameter("@CameraDevice/Width");
    m_service->select(gain);
    m_service->select(gain);
    m_service->select(width);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).value<QSharedPointer<IParameter>>(), gain);
    QCOMPARE(changed.at(1).at(0).value<QSharedPointer<IParameter>>(), width);
    QCOMPARE(m_service->current(), width);
}

void FeatureSelectionTest::testNullIsIgnored()
{
    const auto gain = parameter("@CameraDevice/Gain");
    m_service->select(gain);
    const QSignalSpy changed(m_service.data(), &IFeatureTreeStatusService::currentChanged);
    m_service->select({});
    QCOMPARE(changed.count(), 0);
    QCOMPARE(m_service->current(), gain);
}

void FeatureSelectionTest::testServiceGoesWithThePlugin()
{
    QVERIFY(Core::Plugin::findService<IFeatureTreeStatusService>(&m_registry));
    QVERIFY(m_plugin->uninitialize(&m_registry));
    QVERIFY(!Core::Plugin::findService<IFeatureTreeStatusService>(&m_registry));
}

QTEST_GUILESS_MAIN(FeatureSelectionTest)

#include "FeatureSelectionTest.moc"
