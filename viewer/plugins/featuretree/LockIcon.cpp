// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/LockIcon.h"

#include "plugins/featuretree/MutedText.h"
#include "windows/DrawnIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace FeatureTree {

namespace {

void drawLock(QPainter &painter)
{
    const QBrush body = painter.brush();
    painter.setPen(QPen(body, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawArc(QRectF(5, 2.5, 6, 8), 0, 180 * 16);
    painter.setPen(Qt::NoPen);
    painter.setBrush(body);
    painter.drawRoundedRect(QRectF(3.5, 7, 9, 7), 1, 1);
}

} // namespace

QIcon lockIcon()
{
    return Windows::drawnIcon([] { return mutedText(QGuiApplication::palette()); }, drawLock);
}

} // namespace FeatureTree
