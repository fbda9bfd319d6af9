// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>
#include <NerixCoreExport.h>

#include <QMetaType>
#include <QSharedPointer>
#include <QString>

namespace Core {
namespace CameraPoolComponents {

/// What is known of a camera without opening it.
///
/// `identity` and `displayName` look alike for a camera without a user-defined name and must not be
/// mixed up:
///
/// | camera               | identity                  | displayName               |
/// |----------------------|---------------------------|---------------------------|
/// | no user-defined name | "Ostrand-XQZ-2000-404142" | "Ostrand-XQZ-2000-404142" |
/// | named by its user    | "Ostrand-XQZ-2000-404142" | "Left of the belt"        |
class NERIXCORE_EXPORT ICameraInfo : public IDeviceBaseInfo
{
public:
    ~ICameraInfo() override;

    /// The camera's unique identity. No two cameras share it, and a camera that is unplugged and
    /// plugged in again, or renamed by its user, keeps it.
    virtual QString identity() const = 0;

    /// What the user reads: the user-defined name if one is set, else the identity. Two cameras may
    /// share it, and it changes when the user renames the camera.
    virtual QString displayName() const = 0;

    /// The maker's name of the model, for example "XQZ-2000".
    virtual QString modelName() const = 0;

    /// The maker, for example "Ostrand".
    virtual QString vendorName() const = 0;
};

/// Shared description of a camera. Null means: not a camera, or none.
using CameraInfoPtr = QSharedPointer<ICameraInfo>;

} // namespace CameraPoolComponents
} // namespace Core

Q_DECLARE_METATYPE(Core::CameraPoolComponents::CameraInfoPtr)
