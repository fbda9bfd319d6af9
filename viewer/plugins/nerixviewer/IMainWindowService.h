// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

class QAction;
class QWidget;

namespace Plugin {
namespace NerixViewer {

/// The main window, for the viewer's own plug-ins. Not there in a run without windows, so a plug-in
/// does without if `findService` gives null. GUI thread.
///
/// The window is made before the plug-ins are initialised, gets its panels in their `initialize`,
/// and is shown, with the layout of the last time, when all of them are. It deletes the widgets
/// that are still there when it ends; a plug-in deletes its own in `uninitialize`.
class IMainWindowService : public QObject
{
    Q_OBJECT

public:
    /// The side of the image at which a panel stands until the user moves it.
    enum class Side { Left, Right, Bottom };

    /// Adds \a panel, which the user may move, float and hide. \a name is under which the layout is
    /// remembered, for example "CameraSelector.Cameras"; the caption is the panel's window title.
    virtual void addPanel(const QString &name, QWidget *panel, Side side) = 0;

    /// What fills the middle of the window.
    virtual void setCentralView(QWidget *view) = 0;

    /// Adds \a action, which stays its owner's, at the end of the tool bar. It should have an icon.
    virtual void addToolBarAction(QAction *action) = 0;

    /// Adds \a widget to the status bar, at the right of those that are there.
    virtual void addStatusWidget(QWidget *widget) = 0;

    /// The parent of dialogs.
    virtual QWidget *window() const = 0;

protected:
    using QObject::QObject;
};

} // namespace NerixViewer
} // namespace Plugin
