// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "FakeHost.h"

#include <QMetaObject>

FakeHost::FakeHost()
    : cameraStatus(QSharedPointer<FakeCameraStatusService>::create())
    , enumeration(QSharedPointer<FakeEnumerationService>::create())
    , deviceSelector(QSharedPointer<FakeDeviceSelectorService>::create())
    , featureTree(QSharedPointer<FakeFeatureTreeService>::create())
    , parameterService(QSharedPointer<FakeParameterService>::create())
    , menu(QSharedPointer<FakeMenuService>::create())
    , welcome(QSharedPointer<FakeWelcomeService>::create())
    , m_services{cameraStatus,     enumeration, deviceSelector, featureTree,
                 parameterService, menu,        welcome}
{
    m_cameraContext.moveToThread(&m_cameraThread);
}

FakeHost::~FakeHost()
{
    m_cameraThread.quit();
    m_cameraThread.wait();
}

QReadWriteLock *FakeHost::serviceLock() const
{
    return &m_lock;
}

const QList<QSharedPointer<QObject>> &FakeHost::services() const
{
    // A writer gets the lock only if nobody holds it for reading.
    if (m_lock.tryLockForWrite()) {
        m_lock.unlock();
        ++unlockedWalks;
    }
    if (onServicesWalked) {
        onServicesWalked();
    }
    return m_services;
}

void FakeHost::addService(const QSharedPointer<QObject> &service)
{
    m_services.append(service);
}

void FakeHost::removeService(const QSharedPointer<QObject> &service)
{
    m_services.removeAll(service);
}

void FakeHost::inCameraThread(const std::function<void()> &work)
{
    startInCameraThread(work);
    QMetaObject::invokeMethod(
        &m_cameraContext, [] {}, Qt::BlockingQueuedConnection);
}

void FakeHost::startInCameraThread(const std::function<void()> &work)
{
    if (!m_cameraThread.isRunning()) {
        m_cameraThread.start();
    }
    QMetaObject::invokeMethod(&m_cameraContext, work, Qt::QueuedConnection);
}

QSharedPointer<FakeCamera> FakeHost::makeCamera(const char *identity, const char *model)
{
    const auto camera = QSharedPointer<FakeCamera>::create(identity, model);
    parameterService->collections.insert(camera.data(),
                                         QSharedPointer<FakeParameterCollection>::create());
    return camera;
}

QSharedPointer<FakeParameterCollection>
FakeHost::parametersOf(const QSharedPointer<FakeCamera> &camera) const
{
    return parameterService->collections.value(camera.data());
}
