// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/GrabIcons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

namespace Grabbing {

namespace {

constexpr int iconSize = 16; // in device-independent pixels
const QColor startColor(0x2f, 0x7f, 0xc4);
const QColor stopColor(0xc9, 0x4f, 0x3d);

template <class Draw>
QIcon drawn(const QColor &color, Draw draw)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap pixmap(QSize(iconSize, iconSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    draw(painter);
    return QIcon(pixmap);
}

QPolygonF triangle(qreal left, qreal right)
{
    return {{{left, 2.5}, {right, 8}, {left, 13.5}}};
}

} // namespace

QIcon grabSingleIcon()
{
    return drawn(startColor, [](QPainter &painter) {
        painter.drawPolygon(triangle(2.5, 10.5));
        painter.drawRect(QRectF(11, 2.5, 2.5, 11));
    });
}

QIcon grabContinuousIcon()
{
    return drawn(startColor, [](QPainter &painter) { painter.drawPolygon(triangle(3.5, 13.5)); });
}

QIcon stopIcon()
{
    return drawn(stopColor, [](QPainter &painter) { painter.drawRect(QRectF(3, 3, 10, 10)); });
}

} // namespace Grabbing
