// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IMainWindowService.h"

#include <memory>

#include <QList>
#include <QMainWindow>
#include <QString>

class QDockWidget;
class QMenu;
class QToolBar;

namespace Plugin {
namespace NerixViewer {

class CSidePanels;

/// The frame around everything: menu bar, tool bar, panels, what is in the middle, status bar. It
/// knows nothing of cameras. GUI thread.
class CMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    using Side = IMainWindowService::Side;

    explicit CMainWindow(QWidget *parent = nullptr);
    ~CMainWindow() override;

    /// Puts \a menus, which stay their owner's, into the menu bar.
    void setMenus(const QList<QMenu *> &menus);

    /// @return the panel's frame. It goes when \a panel is deleted.
    QDockWidget *addPanel(const QString &name, QWidget *panel, Side side);

    void addToolBarAction(QAction *action);

    /// Where everything stood when the window was closed last; else as it was built, which
    /// resetLayout brings back, in the middle of the screen. Kept in the settings under
    /// "MainWindow/Geometry" and "MainWindow/State".
    void restoreLayout();
    void saveLayout() const;
    void resetLayout();

Q_SIGNALS:
    /// The user wants to leave. The window stays until the application has agreed.
    void closeRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setFirstSizes();
    void takeFirstPlace();

    QToolBar *m_toolBar;
    std::unique_ptr<CSidePanels> m_sidePanels;
    QByteArray m_builtState;
};

} // namespace NerixViewer
} // namespace Plugin
