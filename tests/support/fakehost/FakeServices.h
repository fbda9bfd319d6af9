// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeParameterCollection.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <CameraPool/ICameraStatusService.h>
#include <CameraSelector/IDeviceSelectorService.h>
#include <FeatureTree/IFeatureTreeStatusService.h>
#include <ParameterCollectionPool/IParameterService.h>

#include <functional>

#include <QMap>
#include <QMetaMethod>

/// A service that only emits signals; the test emits them. It tells who listens, and when.
template <class Interface>
class FakeSignals : public Interface
{
public:
    FakeSignals()
        : Interface(nullptr)
    {}

    /// How many receivers \a signal has.
    template <class Signal>
    int receiverCount(Signal signal) const
    {
        return this->receivers(
            ('2' + QMetaMethod::fromSignal(signal).methodSignature()).constData());
    }

    /// Called with the name of each signal that is connected or disconnected, in the thread that
    /// does so.
    std::function<void(const QString &signal)> onConnected;
    std::function<void(const QString &signal)> onDisconnected;

protected:
    void connectNotify(const QMetaMethod &signal) override
    {
        if (onConnected) {
            onConnected(QString::fromLatin1(signal.name()));
        }
    }

    void disconnectNotify(const QMetaMethod &signal) override
    {
        if (onDisconnected) {
            onDisconnected(QString::fromLatin1(signal.name()));
        }
    }
};

using FakeCameraStatusService = FakeSignals<CameraPool::ICameraStatusService>;
using FakeEnumerationService = FakeSignals<CameraPool::ICameraEnumerationService>;
using FakeDeviceSelectorService = FakeSignals<CameraSelector::IDeviceSelectorService>;
using FakeFeatureTreeService = FakeSignals<FeatureTree::IFeatureTreeStatusService>;

/// Hands out the collections that the test puts in.
class FakeParameterService : public ParameterCollectionPool::IParameterService
{
public:
    FakeParameterService()
        : IParameterService(nullptr)
    {}

    QSharedPointer<ParameterCollection::IParameterCollection> parameterCollection(
        const Core::CameraPoolComponents::DeviceBaseInfoPtr &ptrDeviceInfo) const override
    {
        ++fetches;
        if (onFetch) {
            onFetch();
        }
        return collections.value(ptrDeviceInfo.data());
    }

    QMap<const Core::CameraPoolComponents::IDeviceBaseInfo *,
         QSharedPointer<FakeParameterCollection>>
        collections;
    /// How often a collection was asked for.
    mutable int fetches = 0;
    /// Called each time, before the answer. It may throw.
    std::function<void()> onFetch;
};
