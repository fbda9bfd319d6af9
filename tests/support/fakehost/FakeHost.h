// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeCamera.h"
#include "FakeServices.h"
#include "FakeShell.h"

#include <Core/Plugin/IPluginInitializer.h>

#include <functional>

#include <QList>
#include <QReadWriteLock>
#include <QSharedPointer>
#include <QThread>

/// The initializer of a viewer that does not exist, with every service there is.
class FakeHost : public Core::Plugin::IPluginInitializer
{
public:
    FakeHost();
    ~FakeHost() override;

    QReadWriteLock *serviceLock() const override;
    const QList<QSharedPointer<QObject>> &services() const override;
    void addService(const QSharedPointer<QObject> &service) override;
    void removeService(const QSharedPointer<QObject> &service) override;

    /// Runs \a work in the host's own camera thread and waits for its end: signals that are emitted
    /// in it come to the plug-in from another thread, as in the real viewer.
    void inCameraThread(const std::function<void()> &work);

    /// As `inCameraThread`, without waiting.
    void startInCameraThread(const std::function<void()> &work);

    /// A camera with parameters, ready to be reported.
    QSharedPointer<FakeCamera> makeCamera(const char *identity, const char *model = "ab1234-50c");
    QSharedPointer<FakeParameterCollection>
    parametersOf(const QSharedPointer<FakeCamera> &camera) const;

    const QSharedPointer<FakeCameraStatusService> cameraStatus;
    const QSharedPointer<FakeEnumerationService> enumeration;
    const QSharedPointer<FakeDeviceSelectorService> deviceSelector;
    const QSharedPointer<FakeFeatureTreeService> featureTree;
    const QSharedPointer<FakeParameterService> parameterService;
    const QSharedPointer<FakeMenuService> menu;
    const QSharedPointer<FakeWelcomeService> welcome;

    /// Walks of the list that were made while the read lock was not held.
    mutable int unlockedWalks = 0;

    /// Called at each walk.
    std::function<void()> onServicesWalked;

private:
    mutable QReadWriteLock m_lock;
    QList<QSharedPointer<QObject>> m_services;
    QThread m_cameraThread;
    QObject m_cameraContext;
};
