// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"
#include "plugins/camerapool/IImageService.h"

#include <CameraPool/ICameraStatusService.h>

#include <memory>
#include <vector>

#include <QObject>
#include <QSharedPointer>
#include <QThreadPool>

namespace ImageView {

class CLiveCamera;
class CMailbox;

/// The open cameras with their live images, in the order in which they were opened. Needs no
/// window. GUI thread.
class CLiveImages : public QObject
{
    Q_OBJECT

public:
    /// None is null.
    struct Services
    {
        QSharedPointer<CameraPool::ICameraControlService> control;
        QSharedPointer<CameraPool::ICameraStatusService> status;
        QSharedPointer<CameraPool::IImageService> images;
    };

    explicit CLiveImages(const Services &services);

    /// Waits for the conversions that are under way.
    ~CLiveImages() override;

    QList<CLiveCamera *> cameras() const;

    /// The one of the camera \a device; null if that is not open, not a camera, or null.
    CLiveCamera *find(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device) const;

Q_SIGNALS:
    /// \a camera is at the end of `cameras`.
    void cameraAdded(ImageView::CLiveCamera *camera);

    /// \a camera is no more among `cameras` and is deleted when this returns.
    void cameraRemoved(ImageView::CLiveCamera *camera);

    /// So many images of \a camera failed, for the same reason, since this was said last.
    void imagesFailed(ImageView::CLiveCamera *camera, const QString &text, int count);

private:
    void listen(const Services &services);
    void add(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device);
    void remove(const Core::CameraPoolComponents::DeviceBaseInfoPtr &device);
    void onNews(const QString &identity);
    void updateNames();
    void onRenamed(const Core::CameraPoolComponents::CameraInfoPtr &info);
    CLiveCamera *find(const QString &identity) const;

    const QSharedPointer<CameraPool::ICameraControlService> m_control;
    const std::shared_ptr<CMailbox> m_mailbox;
    std::vector<std::unique_ptr<CLiveCamera>> m_cameras;
    QThreadPool m_workers; // last: its work ends before the cameras do
};

} // namespace ImageView
