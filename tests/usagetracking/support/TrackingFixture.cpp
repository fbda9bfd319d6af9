// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "TrackingFixture.h"

#include "TestConfiguration.h"

#include <QCoreApplication>
#include <QMetaMethod>
#include <QMetaObject>

using Plugin::UsageTracking::Internal::CUsageTrackingProvider;

TrackingFixture::TrackingFixture()
    : provider(new CUsageTrackingProvider)
{
    analytics.reset();
    useTestAnalyticsConfiguration();
    servicesFound = provider->acquireServices(&host);
    provider->moveToThread(&trackingThread);
    QObject::connect(&trackingThread, &QThread::finished, provider, &QObject::deleteLater);
    trackingThread.start();
}

TrackingFixture::~TrackingFixture()
{
    trackingThread.quit();
    trackingThread.wait();
}

void TrackingFixture::start()
{
    inTrackingThread([this] { provider->startTracking(); });
}

void TrackingFixture::stop()
{
    inTrackingThread([this] { provider->stopTracking(); });
}

void TrackingFixture::optOut()
{
    inTrackingThread([this] { provider->stopTrackingAndOptOut(); });
}

void TrackingFixture::emitFromHost(const std::function<void()> &emission)
{
    host.inCameraThread(emission);
    settle();
}

QStringList TrackingFixture::callsFor(const std::function<void()> &emission)
{
    analytics.takeCalls();
    emitFromHost(emission);
    return analytics.takeCalls();
}

void TrackingFixture::startQuietly()
{
    start();
    analytics.takeCalls();
}

void TrackingFixture::settle()
{
    inTrackingThread([] {});
}

void TrackingFixture::inTrackingThread(const std::function<void()> &work)
{
    QMetaObject::invokeMethod(provider, work, Qt::BlockingQueuedConnection);
}

void TrackingFixture::callSlot(const char *slot,
                               const Core::CameraPoolComponents::DeviceBaseInfoPtr &device)
{
    const QMetaObject *meta = provider->metaObject();
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.name() == slot) {
            const QGenericArgument argument(method.parameterTypes().at(0).constData(), &device);
            inTrackingThread([&] { method.invoke(provider, Qt::DirectConnection, argument); });
            return;
        }
    }
    qFatal("The provider has no slot %s.", slot);
}

void TrackingFixture::connectCamera(const QSharedPointer<FakeCamera> &camera)
{
    emitFromHost([&] { Q_EMIT host.cameraStatus->deviceConnected(camera); });
}

void TrackingFixture::openCamera(const QSharedPointer<FakeCamera> &camera)
{
    emitFromHost([&] { Q_EMIT host.cameraStatus->deviceOpened(camera); });
}

QString expectedDirectory()
{
    return QStringLiteral("%1/Ostrand/%2")
        .arg(qEnvironmentVariable("XDG_DATA_HOME"), QCoreApplication::applicationName());
}
