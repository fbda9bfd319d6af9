// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFoundCamera.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

namespace CameraPool {

/// The description of a camera that the pool hands out: what the search told, frozen.
class CCameraInfo : public Core::CameraPoolComponents::ICameraInfo
{
public:
    explicit CCameraInfo(CFoundCamera found);
    ~CCameraInfo() override;

    QString identity() const override;
    QString displayName() const override;
    QString modelName() const override;
    QString vendorName() const override;

private:
    const CFoundCamera m_found;
};

} // namespace CameraPool
