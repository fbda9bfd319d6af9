// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/nerixviewer/IMainWindowService.h"

#include <memory>

#include <QWidget>

// A run with windows, whose main window is an empty one.
class CTestWindows : public Plugin::NerixViewer::IMainWindowService
{
    Q_OBJECT

public:
    CTestWindows();
    ~CTestWindows() override;

    void addPanel(const QString &name, QWidget *panel, Side side) override;
    void setCentralView(QWidget *view) override;
    void addToolBarAction(QAction *action) override;
    void addStatusWidget(QWidget *widget) override;
    QWidget *window() const override;

private:
    std::unique_ptr<QWidget> m_window;
};
