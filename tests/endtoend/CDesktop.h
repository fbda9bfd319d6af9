// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QRect>
#include <QString>

class CViewerProcess;

/// A window manager on the display of the test, and what an outsider sees of the windows there.
class CDesktop
{
public:
    CDesktop() = default;
    ~CDesktop();

    Q_DISABLE_COPY_MOVE(CDesktop)

    /// Returns when the window manager is ready. @return false when it does not start.
    bool start();

    /// Starts \a viewer with its windows, to go on until it is told to end. Returns when the
    /// welcome screen is there. @return false when it does not come.
    static bool showFirstWindows(CViewerProcess &viewer);

    /// The window of that title, without its frame; null if no such window is seen.
    static QRect placeOf(const QString &title);

private:
    QProcess m_windowManager;
};
