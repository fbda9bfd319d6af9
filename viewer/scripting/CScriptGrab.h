// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptCameraObject.h"

#include <Nerix/CGrabResultData.h>

#include <QMap>
#include <QVariant>

namespace CameraPool {
class ICameraStatusService;
}

namespace Scripting {

/// `grab`: grabbing with an open camera, and the figures that the status bar shows. GUI thread.
class CScriptGrab : public CScriptCameraObject
{
    Q_OBJECT

public:
    /// \a services and \a wait must outlive the object.
    CScriptGrab(const Core::Plugin::IPluginInitializer &services, CScriptWait &wait,
                QObject *parent);
    ~CScriptGrab() override;

    /// Grabs one image; returns once the grab has ended.
    Q_INVOKABLE void single(const QJSValue &camera, int ms = 10000);

    /// Grabs until `stop`; returns once the grab has begun.
    Q_INVOKABLE void start(const QJSValue &camera, int ms = 10000);

    /// Returns once the grab has ended.
    Q_INVOKABLE void stop(const QJSValue &camera, int ms = 10000);

    /// Returns once \a images of the grab have arrived or failed. An exception in the script as
    /// soon as none is to come: the camera does not grab.
    Q_INVOKABLE void waitFor(const QJSValue &camera, int images, int ms = 10000);

    /// Of the grab that runs, or else the last one, also when the camera is gone; zeros before the
    /// first one: "isGrabbing", "images" and "failures" as they
    /// arrived, "lastFailure", and from the status bar "imagesGrabbedCount", "imagesFailedCount",
    /// "fps" (images a second), "bps" (bytes a second).
    Q_INVOKABLE QVariantMap figures(const QJSValue &camera);

private:
    struct Grab
    {
        CameraInfoPtr camera;
        int starts = 0;
        int stops = 0;
        int images = 0;
        int failures = 0;
        QString lastFailure;
        QString refusal;
        int imagesGrabbedCount = 0;
        int imagesFailedCount = 0;
        double fps = 0.0;
        double bps = 0.0;

        bool isGrabbing() const
        {
            return starts != stops;
        }
    };
    using Request = void (CameraPool::ICameraControlService::*)(const CameraInfoPtr &);

    void listenTo(const CameraPool::ICameraStatusService &status);
    void listenTo(const CameraPool::ICameraControlService &pool);
    Grab &grabOf(const CameraInfoPtr &camera);
    QList<CameraInfoPtr> camerasThatGrabbed() const;
    void noteImage(Grab &grab, const Nerix::CGrabResultData &result);

    /// Asks the pool, and waits until \a count of the camera's grab has risen.
    void request(Request operation, int Grab::*count, const QJSValue &camera, int ms,
                 const QString &what);

    QMap<QString, Grab> m_grabs;
};

} // namespace Scripting
