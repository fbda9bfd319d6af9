// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IMainWindowService.h"

#include <QAction>
#include <QList>
#include <QPointer>
#include <QWidget>

// A main window that only keeps what it is given.
class CFakeMainWindow : public Plugin::NerixViewer::IMainWindowService
{
    Q_OBJECT

public:
    CFakeMainWindow();
    ~CFakeMainWindow() override;

    void addPanel(const QString &name, QWidget *panel, Side side) override;
    void setCentralView(QWidget *view) override;
    void addToolBarAction(QAction *action) override;
    void addStatusWidget(QWidget *widget) override;
    QWidget *window() const override;

    QList<QPointer<QWidget>> panels;
    QPointer<QWidget> centralView;
    QList<QPointer<QAction>> toolBarActions;
    QList<QPointer<QWidget>> statusWidgets;
};
