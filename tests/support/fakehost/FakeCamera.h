// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeParameterCollection.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <stdexcept>

#include <QSharedPointer>
#include <QString>

/// A camera that answers what the test sets.
class FakeCamera : public Core::CameraPoolComponents::ICameraInfo
{
public:
    explicit FakeCamera(const char *identity, const char *model = "ab1234-50c")
        : cameraIdentity(QString::fromUtf8(identity))
        , cameraModel(QString::fromUtf8(model))
    {}

    QString identity() const override
    {
        if (identityThrows) {
            throw std::runtime_error("identity failed");
        }
        return cameraIdentity;
    }

    QString displayName() const override
    {
        return userName.isEmpty() ? identity() : userName;
    }
    QString modelName() const override
    {
        return cameraModel;
    }
    QString vendorName() const override
    {
        return vendor;
    }

    QString cameraIdentity;
    QString cameraModel;
    QString vendor = QStringLiteral("Vendor");
    QString userName;
    bool identityThrows = false;
};

/// A device that is not a camera.
class FakeDevice : public Core::CameraPoolComponents::IDeviceBaseInfo
{};
