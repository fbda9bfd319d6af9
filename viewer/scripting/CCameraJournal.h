// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CameraPoolComponents/IDeviceBaseInfo.h>

#include <QObject>
#include <QString>
#include <QVariantList>

namespace CameraPool {
class ICameraStatusService;
}

namespace Scripting {

/// Writes down what the camera pool tells of cameras that come, go, are opened and closed, so that
/// a script can look at it later. GUI thread.
class CCameraJournal : public QObject
{
    Q_OBJECT

public:
    explicit CCameraJournal(QObject *parent);

    /// Begins with the news of \a status.
    void listenTo(const CameraPool::ICameraStatusService &status);

    /// The entries since the last call, oldest first: what `describeCamera` gives, and "event":
    /// "connected", "disconnected", "opened" or "closing".
    QVariantList take();

private:
    void note(const QString &event, const Core::CameraPoolComponents::DeviceBaseInfoPtr &device);

    QVariantList m_entries;
};

} // namespace Scripting
