// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

// Moves the mouse over a widget. QTest's own function needs a screen with a mouse.
inline void moveMouse(QWidget *widget, const QPoint &place, Qt::MouseButtons pressed = Qt::NoButton)
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, pressed,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}
