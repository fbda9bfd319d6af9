// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CTestWindows.h"

CTestWindows::CTestWindows()
    : m_window(std::make_unique<QWidget>())
{}

CTestWindows::~CTestWindows() = default;

void CTestWindows::addPanel(const QString &, QWidget *panel, Side)
{
    panel->setParent(m_window.get());
}

void CTestWindows::setCentralView(QWidget *view)
{
    view->setParent(m_window.get());
}

void CTestWindows::addToolBarAction(QAction *) {}

void CTestWindows::addStatusWidget(QWidget *widget)
{
    widget->setParent(m_window.get());
}

QWidget *CTestWindows::window() const
{
    return m_window.get();
}
