// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixviewer/CSidePanels.h"

#include <algorithm>

#include <QDockWidget>
#include <QEvent>
#include <QLayout>
#include <QMainWindow>
#include <QScopedValueRollback>

namespace Plugin {
namespace NerixViewer {

CSidePanels::CSidePanels(QMainWindow &window, int fullWidth)
    : m_window(window)
    , m_fullWidth(fullWidth)
    , m_windowWidth(window.width())
{}

CSidePanels::~CSidePanels() = default;

void CSidePanels::add(QDockWidget *panel)
{
    panel->installEventFilter(this);
    connect(panel, &QObject::destroyed, this,
            [this](const QObject *gone) { m_fullWidths.remove(gone); });
}

void CSidePanels::setFullWidth(QDockWidget *panel, int width)
{
    m_fullWidths.insert(panel, width);
    resize({panel}, {qRound(width * ratio())});
}

void CSidePanels::adopt()
{
    m_fullWidths.clear();
}

void CSidePanels::follow()
{
    m_windowWidth = m_window.width();
    QList<QDockWidget *> panels;
    QList<int> widths;
    const auto all = m_window.findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QDockWidget *panel : all) {
        if (m_fullWidths.contains(panel) && isAtASide(*panel)) {
            panels.append(panel);
            widths.append(qRound(m_fullWidths.value(panel) * ratio()));
        }
    }
    if (!panels.isEmpty()) {
        resize(panels, widths);
    }
}

// At once, so that what the user does later is told apart.
void CSidePanels::resize(const QList<QDockWidget *> &panels, const QList<int> &widths)
{
    const QScopedValueRollback<bool> resizing(m_isResizing, true);
    m_window.resizeDocks(panels, widths, Qt::Horizontal);
    m_window.layout()->activate();
}

bool CSidePanels::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        noteWidth(static_cast<QDockWidget *>(watched));
    }
    return QObject::eventFilter(watched, event);
}

double CSidePanels::ratio() const
{
    return std::min(1.0, double(m_window.width()) / m_fullWidth);
}

bool CSidePanels::isAtASide(const QDockWidget &panel) const
{
    const Qt::DockWidgetArea area = m_window.dockWidgetArea(const_cast<QDockWidget *>(&panel));
    return !panel.isHidden() && !panel.isFloating()
           && (area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea);
}

// What the window does to its panels while it gets another width itself is no wish of the user.
void CSidePanels::noteWidth(QDockWidget *panel)
{
    if (!m_isResizing && m_windowWidth == m_window.width() && isAtASide(*panel)) {
        m_fullWidths.insert(panel, panel->width() / ratio());
    }
}

} // namespace NerixViewer
} // namespace Plugin
