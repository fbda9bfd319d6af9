// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/LockIcon.h"

#include "plugins/featuretree/MutedText.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace FeatureTree {

namespace {

// Drawn anew each time, so that it follows the palette and the scale.
class CLockEngine : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const QColor colour =
            mode == QIcon::Selected ? palette.color(QPalette::HighlightedText) : mutedText(palette);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        painter->setPen(QPen(colour, 1.5));
        painter->drawArc(QRectF(5, 2.5, 6, 8), 0, 180 * 16);
        painter->setPen(Qt::NoPen);
        painter->setBrush(colour);
        painter->drawRoundedRect(QRectF(3.5, 7, 9, 7), 1, 1);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override
    {
        return new CLockEngine(*this);
    }
};

} // namespace

QIcon lockIcon()
{
    return QIcon(new CLockEngine);
}

} // namespace FeatureTree
