// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/CMailbox.h"
#include "plugins/imageview/ShownImage.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>

#include <memory>

#include <QObject>
#include <QTimer>

class QThreadPool;

namespace ImageView {

/// The live image of one open camera. Images are fetched from the mailbox as fast as they can be
/// shown, at most 60 a second, and converted by a worker, one at a time. GUI thread.
class CLiveCamera : public QObject
{
    Q_OBJECT

public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    /// \a workers must outlive this.
    CLiveCamera(CameraInfoPtr info, std::shared_ptr<CMailbox> mailbox, QThreadPool &workers);
    ~CLiveCamera() override;

    /// Described as it was found last; never null.
    const CameraInfoPtr &info() const;

    /// Takes another description of the same camera.
    void setInfo(const CameraInfoPtr &info);

    /// What the user reads: the display name, told apart from those of the other cameras.
    QString name() const;
    void setName(const QString &name);

    const ShownImage &image() const;
    bool isGrabbing() const;

    /// How many images of the last grab failed, and the words for the last of them.
    int failureCount() const;
    QString lastFailure() const;

    /// There is something in the mailbox.
    void onNews();

    /// A new grab: its failures are counted anew.
    void onGrabStarted();
    void onGrabStopped();

Q_SIGNALS:
    void imageChanged();

    void nameChanged();

    /// `isGrabbing`, `failureCount` or `lastFailure` is another one.
    void stateChanged();

    /// So many images failed, for the same reason, since this was said last.
    void imagesFailed(const QString &text, int count);

private:
    void fetch();
    void noteFailures(const QVector<CMailbox::Failure> &failures);
    void convert(const Nerix::CGrabResultPtr &result, const QDateTime &time);
    void show(const ShownImage &image);

    CameraInfoPtr m_info;
    QString m_name;
    const std::shared_ptr<CMailbox> m_mailbox;
    QThreadPool &m_workers;
    QTimer m_pace;
    ShownImage m_image;
    QString m_lastFailure;
    int m_failureCount = 0;
    bool m_isGrabbing = false;
    bool m_hasNews = false;
    bool m_isConverting = false;
};

} // namespace ImageView
