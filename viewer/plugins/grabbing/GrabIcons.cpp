// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/GrabIcons.h"

#include "windows/DrawnIcon.h"

#include <QPainter>
#include <QPolygonF>

namespace Grabbing {

namespace {

QColor startColor()
{
    return QColor(0x2f, 0x7f, 0xc4);
}

QColor stopColor()
{
    return QColor(0xc9, 0x4f, 0x3d);
}

QPolygonF triangle(qreal left, qreal right)
{
    return {{{left, 2.5}, {right, 8}, {left, 13.5}}};
}

} // namespace

QIcon grabSingleIcon()
{
    return Windows::drawnIcon(startColor, [](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.drawPolygon(triangle(2.5, 10.5));
        painter.drawRect(QRectF(11, 2.5, 2.5, 11));
    });
}

QIcon grabContinuousIcon()
{
    return Windows::drawnIcon(startColor, [](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.drawPolygon(triangle(3.5, 13.5));
    });
}

QIcon stopIcon()
{
    return Windows::drawnIcon(stopColor, [](QPainter &painter) {
        painter.setPen(Qt::NoPen);
        painter.drawRect(QRectF(3, 3, 10, 10));
    });
}

} // namespace Grabbing
