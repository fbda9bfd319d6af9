// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CFakeMainWindow.h"

CFakeMainWindow::CFakeMainWindow() = default;

CFakeMainWindow::~CFakeMainWindow()
{
    for (const auto &widget : panels + statusWidgets) {
        delete widget;
    }
    delete centralView;
}

void CFakeMainWindow::addPanel(const QString &, QWidget *panel, Side)
{
    panels.append(panel);
}

void CFakeMainWindow::setCentralView(QWidget *view)
{
    centralView = view;
}

void CFakeMainWindow::addToolBarAction(QAction *action)
{
    toolBarActions.append(action);
}

void CFakeMainWindow::addStatusWidget(QWidget *widget)
{
    statusWidgets.append(widget);
}

QWidget *CFakeMainWindow::window() const
{
    return nullptr;
}
