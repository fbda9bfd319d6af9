// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/ICameraInfo.h>

// A camera that is nothing but its description.
class CFakeCamera : public Core::CameraPoolComponents::ICameraInfo
{
public:
    CFakeCamera(const QString &identity, const QString &displayName, const QString &model);
    ~CFakeCamera() override;

    QString identity() const override;
    QString displayName() const override;
    QString modelName() const override;
    QString vendorName() const override;

private:
    QString m_identity;
    QString m_displayName;
    QString m_model;
};
