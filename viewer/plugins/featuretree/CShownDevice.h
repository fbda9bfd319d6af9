// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <CameraPool/ICameraStatusService.h>
#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <QObject>
#include <QSharedPointer>

namespace CameraPool {
class ICameraControlService;
}
namespace CameraSelector {
class IDeviceSelectionService;
}

namespace FeatureTree {

/// Follows the selected device and whether it can be used. GUI thread.
class CShownDevice : public QObject
{
    Q_OBJECT

public:
    using DevicePtr = Core::CameraPoolComponents::DeviceBaseInfoPtr;

    enum class Condition {
        None,   ///< no camera is selected
        Gone,   ///< it is not connected
        Closed, ///< it is connected and not open in this viewer
        Open
    };

    /// Null stands for a service that is not there; nothing is ever open then.
    CShownDevice(const QSharedPointer<CameraSelector::IDeviceSelectionService> &selection,
                 const QSharedPointer<CameraPool::ICameraControlService> &control,
                 const QSharedPointer<CameraPool::ICameraStatusService> &status);
    ~CShownDevice() override;

    Condition condition() const
    {
        return m_condition;
    }

    /// Described as it was found last. Null for none.
    Core::CameraPoolComponents::CameraInfoPtr camera() const
    {
        return m_camera;
    }

Q_SIGNALS:
    /// Another device, another condition, or the same device opened anew.
    void changed();

    /// The same device in the same condition, but `camera` has another name.
    void renamed();

private:
    void show(const DevicePtr &device);
    void onNews(const DevicePtr &device, Condition condition);
    Condition askCondition() const;
    void set(Condition condition);

    const QSharedPointer<CameraPool::ICameraControlService> m_control;
    Core::CameraPoolComponents::CameraInfoPtr m_camera;
    Condition m_condition = Condition::None;
};

} // namespace FeatureTree
