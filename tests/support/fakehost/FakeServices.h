// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeParameterCollection.h"

#include <CameraPool/ICameraEnumerationService.h>
#include <CameraPool/ICameraStatusService.h>
#include <CameraSelector/IDeviceSelectorService.h>
#include <FeatureTree/IFeatureTreeStatusService.h>
#include <ParameterCollectionPool/IParameterService.h>

#include <QMap>
#include <QMetaMethod>

/// The services that only emit signals; the test emits them. They remember whether anyone listens.
class FakeCameraStatusService : public CameraPool::ICameraStatusService
{
public:
    FakeCameraStatusService()
        : ICameraStatusService(nullptr)
    {}

    /// How many receivers \a signal has.
    template <class Signal>
    int receiverCount(Signal signal) const
    {
        return receivers(('2' + QMetaMethod::fromSignal(signal).methodSignature()).constData());
    }
};

class FakeEnumerationService : public CameraPool::ICameraEnumerationService
{
public:
    FakeEnumerationService()
        : ICameraEnumerationService(nullptr)
    {}
};

class FakeDeviceSelectorService : public CameraSelector::IDeviceSelectorService
{
public:
    FakeDeviceSelectorService()
        : IDeviceSelectorService(nullptr)
    {}
};

class FakeFeatureTreeService : public FeatureTree::IFeatureTreeStatusService
{
public:
    FakeFeatureTreeService()
        : IFeatureTreeStatusService(nullptr)
    {}
};

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
        return collections.value(ptrDeviceInfo.data());
    }

    QMap<const Core::CameraPoolComponents::IDeviceBaseInfo *,
         QSharedPointer<FakeParameterCollection>>
        collections;
    /// How often a collection was asked for.
    mutable int fetches = 0;
};
