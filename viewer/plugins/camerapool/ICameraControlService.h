// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <QList>
#include <QObject>
#include <QString>

namespace CameraPool {

/// What the viewer's own windows and scripts do with cameras; the news come from
/// `ICameraStatusService`. Offered as a service by the built-in plug-in "CameraPool".
///
/// Every operation may be called in any thread and returns at once; the work is done in the camera
/// pool's thread. The signals are emitted there too, while no lock is held.
class ICameraControlService : public QObject
{
    Q_OBJECT

public:
    enum CameraState {
        Gone,           ///< not connected now
        Free,           ///< connected, and nobody has it open
        InUseElsewhere, ///< another program controls it
        Open,           ///< open in this viewer
        Grabbing        ///< open in this viewer and grabbing
    };
    Q_ENUM(CameraState)

    /// The cameras that are connected now, in the order in which they were first seen.
    virtual QList<Core::CameraPoolComponents::CameraInfoPtr> cameras() const = 0;

    virtual CameraState state(const Core::CameraPoolComponents::CameraInfoPtr &camera) const = 0;

    /// Opens \a camera. Ends with `IDeviceStatusService::deviceOpened` or with `openFailed`. A
    /// camera that is open already stays so; nothing is emitted.
    virtual void open(const Core::CameraPoolComponents::CameraInfoPtr &camera) = 0;

    /// True once every receiver of the latest `deviceOpened` of \a camera is done with it: none has
    /// it still to come, is at work on it, or keeps the pointer that it was given. What is done to
    /// the camera from then on is seen by all who watch it since it is open.
    virtual bool
    isOpeningHandled(const Core::CameraPoolComponents::CameraInfoPtr &camera) const = 0;

    /// Stops its grab and closes \a camera. Ends with `closed`. `closed` comes also when it was not
    /// open.
    virtual void close(const Core::CameraPoolComponents::CameraInfoPtr &camera) = 0;

    /// Grabs one image with \a camera, or grabs until `stopGrab`. Ends with
    /// `ICameraStatusService::cameraGrabStarted` or with `grabFailed`. The camera must be open and
    /// not grabbing; a single grab stops by itself, also when no image arrives in time.
    virtual void grabSingle(const Core::CameraPoolComponents::CameraInfoPtr &camera) = 0;
    virtual void grabContinuous(const Core::CameraPoolComponents::CameraInfoPtr &camera) = 0;

    /// Ends the grab of \a camera. `ICameraStatusService::cameraGrabStopped` comes if it grabs;
    /// else nothing happens.
    virtual void stopGrab(const Core::CameraPoolComponents::CameraInfoPtr &camera) = 0;

    /// Stops the search for cameras, closes every camera, and emits `allClosed`.
    virtual void closeAll() = 0;

Q_SIGNALS:
    /// \a message is one line that names the camera and the remedy.
    void openFailed(Core::CameraPoolComponents::CameraInfoPtr camera, const QString &message);

    /// A grab could not be started. \a message is one line that names the camera and the remedy.
    void grabFailed(Core::CameraPoolComponents::CameraInfoPtr camera, const QString &message);

    /// \a camera is closed; `deviceClosing` came before if it was open.
    void closed(Core::CameraPoolComponents::CameraInfoPtr camera);

    /// The camera has another display name than before, which the search found out. \a camera is
    /// its description from now on; those that were handed out before keep the old name. It may be
    /// open, or just have come back; then this comes before `deviceConnected`.
    void renamed(Core::CameraPoolComponents::CameraInfoPtr camera);

    void allClosed();

protected:
    using QObject::QObject;
};

} // namespace CameraPool
