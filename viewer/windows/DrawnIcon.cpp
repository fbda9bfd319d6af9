// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/DrawnIcon.h"

#include <utility>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace Windows {

namespace {

class CDrawingEngine : public QIconEngine
{
public:
    CDrawingEngine(std::function<QColor()> color, std::function<void(QPainter &)> draw)
        : m_color(std::move(color))
        , m_draw(std::move(draw))
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal unit = qreal(rect.width()) / drawnIconSize;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(unit, unit);
        painter->setPen(colorFor(mode));
        painter->setBrush(colorFor(mode));
        m_draw(*painter);
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
        return new CDrawingEngine(*this);
    }

private:
    QColor colorFor(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        switch (mode) {
        case QIcon::Selected:
            return palette.color(QPalette::HighlightedText);
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        default:
            return m_color();
        }
    }

    std::function<QColor()> m_color;
    std::function<void(QPainter &)> m_draw;
};

} // namespace

QIcon drawnIcon(std::function<QColor()> color, std::function<void(QPainter &)> draw)
{
    return QIcon(new CDrawingEngine(std::move(color), std::move(draw)));
}

} // namespace Windows
