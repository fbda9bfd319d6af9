// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"

#include <functional>

#include <QMap>

// A camera pool without cameras of its own: the test plugs them in and out. Opening and closing is
// done from the event loop, as by the real one, except where the test says otherwise.
class CFakeCameraControl : public CameraPool::ICameraControlService
{
    Q_OBJECT

public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    CFakeCameraControl();
    ~CFakeCameraControl() override;

    CameraInfoPtr plugIn(const char *identity, const char *model = "XQZ-2000",
                         const char *displayName = nullptr);
    void unplug(const CameraInfoPtr &camera);

    // As when a search finds that the camera has another name. @return its new description.
    CameraInfoPtr rename(const CameraInfoPtr &camera, const char *displayName);

    // What `state` says from now on. `open` and `close` change it too.
    void setState(const CameraInfoPtr &camera, CameraState state);

    // The next `open` fails with this.
    void failToOpen(const char *message);

    // What `isOpeningHandled` says; true without it.
    void setOpeningsHandled(bool areHandled);

    // Whether `closeAll` leads to `allClosed`.
    void setClosesAll(bool closes);

    int closeAllCount() const;

    QList<CameraInfoPtr> cameras() const override;
    CameraState state(const CameraInfoPtr &camera) const override;
    bool isOpeningHandled(const CameraInfoPtr &camera) const override;
    void open(const CameraInfoPtr &camera) override;
    void close(const CameraInfoPtr &camera) override;
    void closeAll() override;

    // The three grab operations only tell the test: "single", "continuous" or "stop".
    void grabSingle(const CameraInfoPtr &camera) override;
    void grabContinuous(const CameraInfoPtr &camera) override;
    void stopGrab(const CameraInfoPtr &camera) override;

    std::function<void(const QString &operation, const CameraInfoPtr &camera)> onGrabRequest =
        [](const QString &, const CameraInfoPtr &) {};

private:
    QList<CameraInfoPtr> m_cameras;
    QMap<QString, CameraState> m_states;
    QString m_openFailure;
    bool m_areOpeningsHandled = true;
    bool m_closesAll = true;
    int m_closeAllCount = 0;
};
