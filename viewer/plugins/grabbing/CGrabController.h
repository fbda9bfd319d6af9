// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/grabbing/GrabFigures.h"

#include <CameraPool/ICameraStatusService.h>

#include <optional>

#include <QHash>
#include <QObject>
#include <QSet>
#include <QSharedPointer>

namespace CameraSelector {
class IDeviceSelectionService;
}

namespace Grabbing {

/// Grabbing with the selected camera: what can be done now, and the figures. GUI thread.
class CGrabController : public QObject
{
    Q_OBJECT

public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    /// None is null.
    struct Services
    {
        QSharedPointer<CameraPool::ICameraControlService> control;
        QSharedPointer<CameraPool::ICameraStatusService> status;
        QSharedPointer<CameraSelector::IDeviceSelectionService> selection;
    };

    explicit CGrabController(const Services &services, QObject *parent = nullptr);
    ~CGrabController() override;

    /// True while the selected camera is open and does not grab.
    bool canGrab() const;

    /// True while the selected camera grabs or is about to.
    bool canStop() const;

    /// Of the last grab of the selected camera; none before its first one since it was opened.
    std::optional<GrabFigures> figures() const;

public Q_SLOTS:
    /// Each does nothing if it cannot be done now.
    void grabSingle();
    void grabContinuous();
    void stop();

Q_SIGNALS:
    /// What can be done, or the figures, may be others now.
    void changed();

private:
    void listen();
    void onGrabStarted(const CameraInfoPtr &camera);
    void onGrabStopped(const CameraInfoPtr &camera);
    void onGrabFailed(const CameraInfoPtr &camera);
    void onFigures(const CameraInfoPtr &camera, const GrabFigures &figures);
    void forget(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device);

    CameraInfoPtr selected() const;
    CameraPool::ICameraControlService::CameraState state() const;
    bool isRequested() const;

    const Services m_services;
    QSet<QString> m_requested; // identities of cameras whose grab has not started yet
    QSet<QString> m_running;   // identities of cameras that grab
    QHash<QString, GrabFigures> m_figures;
};

} // namespace Grabbing
