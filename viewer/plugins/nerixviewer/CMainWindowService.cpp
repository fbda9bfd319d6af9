// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CMainWindowService.h"

#include "plugins/nerixviewer/CMainWindow.h"

#include <utility>

#include <QStatusBar>

namespace Plugin {
namespace NerixViewer {

CMainWindowService::CMainWindowService(PanelListener onPanel, QObject *parent)
    : IMainWindowService(parent)
    , m_onPanel(std::move(onPanel))
    , m_window(new CMainWindow)
{}

CMainWindowService::~CMainWindowService() = default;

void CMainWindowService::addPanel(const QString &name, QWidget *panel, Side side)
{
    m_onPanel(*m_window->addPanel(name, panel, side));
}

void CMainWindowService::setCentralView(QWidget *view)
{
    m_window->setCentralWidget(view);
}

void CMainWindowService::addToolBarAction(QAction *action)
{
    m_window->addToolBarAction(action);
}

void CMainWindowService::addStatusWidget(QWidget *widget)
{
    m_window->statusBar()->addPermanentWidget(widget);
}

QWidget *CMainWindowService::window() const
{
    return m_window.data();
}

CMainWindow &CMainWindowService::mainWindow()
{
    return *m_window;
}

} // namespace NerixViewer
} // namespace Plugin
