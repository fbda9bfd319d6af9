// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IMainWindowService.h"

#include <functional>

#include <QScopedPointer>

class QDockWidget;

namespace Plugin {
namespace NerixViewer {

class CMainWindow;

/// Offers the main window to the viewer's plug-ins, and owns it. GUI thread.
class CMainWindowService : public IMainWindowService
{
    Q_OBJECT

public:
    /// Called with each new panel's frame.
    using PanelListener = std::function<void(QDockWidget &)>;

    explicit CMainWindowService(PanelListener onPanel, QObject *parent = nullptr);
    ~CMainWindowService() override;

    void addPanel(const QString &name, QWidget *panel, Side side) override;
    void setCentralView(QWidget *view) override;
    void addToolBarAction(QAction *action) override;
    void addStatusWidget(QWidget *widget) override;
    QWidget *window() const override;

    CMainWindow &mainWindow();

private:
    PanelListener m_onPanel;
    QScopedPointer<CMainWindow> m_window;
};

} // namespace NerixViewer
} // namespace Plugin
