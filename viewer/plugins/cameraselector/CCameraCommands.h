// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/ICameraControlService.h"

#include <QObject>
#include <QSharedPointer>

class QAction;

namespace Plugin {
namespace AppCore {
class IMenuService;
}
} // namespace Plugin

namespace CameraSelector {

class IDeviceSelectionService;

/// What a user does with the selected camera: the entries "Open" and "Close" of the Camera menu,
/// which are enabled as its state allows. GUI thread.
class CCameraCommands : public QObject
{
    Q_OBJECT

public:
    /// Neither is null.
    CCameraCommands(QSharedPointer<CameraPool::ICameraControlService> control,
                    QSharedPointer<IDeviceSelectionService> selection);
    ~CCameraCommands() override;

    void addEntries(Plugin::AppCore::IMenuService &menus);

    /// Looks again at what the selected camera is doing.
    void update();

    /// What a double click does: opens a camera that is not open, closes one that is. One that
    /// grabs is left alone, because images may be lost by a slip of the hand; `leftAlone` tells.
    void openOrClose(const Core::CameraPoolComponents::CameraInfoPtr &camera);

    /// Null before addEntries.
    QAction *openAction() const;
    QAction *closeAction() const;

Q_SIGNALS:
    /// \a hint is one line: why the camera was not closed, and how to close it all the same.
    void leftAlone(const QString &hint);

private:
    Core::CameraPoolComponents::CameraInfoPtr selected() const;

    QSharedPointer<CameraPool::ICameraControlService> m_control;
    QSharedPointer<IDeviceSelectionService> m_selection;
    QAction *m_open = nullptr;
    QAction *m_close = nullptr;
};

} // namespace CameraSelector
