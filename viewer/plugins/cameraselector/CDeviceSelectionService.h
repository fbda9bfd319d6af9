// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/cameraselector/IDeviceSelectionService.h"

namespace CameraSelector {

/// Holds the selection. GUI thread.
class CDeviceSelectionService : public IDeviceSelectionService
{
    Q_OBJECT

public:
    explicit CDeviceSelectionService(QObject *parent = nullptr);
    ~CDeviceSelectionService() override;

    Core::CameraPoolComponents::DeviceBaseInfoPtr selected() const override;
    void select(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device) override;

private:
    Core::CameraPoolComponents::DeviceBaseInfoPtr m_selected;
};

} // namespace CameraSelector
