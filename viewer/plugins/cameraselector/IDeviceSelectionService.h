// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <CameraSelector/IDeviceSelectorService.h>

namespace CameraSelector {

/// What the viewer's own windows and scripts do with the selection. GUI thread.
class IDeviceSelectionService : public IDeviceSelectorService
{
    Q_OBJECT

public:
    /// Null: nothing is selected.
    virtual Core::CameraPoolComponents::DeviceBaseInfoPtr selected() const = 0;

    /// Selects \a device; null selects nothing. Emits `selectionChanged` if that is a change;
    /// another description of the same camera is none.
    virtual void select(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device) = 0;

protected:
    using IDeviceSelectorService::IDeviceSelectorService;
};

} // namespace CameraSelector
