// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CElidedLabel.h"

#include <QPainter>

namespace ImageView {

CElidedLabel::CElidedLabel(Qt::TextElideMode mode, QWidget *parent)
    : CPlainLabel(parent)
    , m_mode(mode)
{}

CElidedLabel::~CElidedLabel() = default;

QSize CElidedLabel::minimumSizeHint() const
{
    return {0, CPlainLabel::minimumSizeHint().height()};
}

void CElidedLabel::paintEvent(QPaintEvent *)
{
    const QRect space = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(space, int(alignment()),
                     fontMetrics().elidedText(text(), m_mode, space.width()));
}

} // namespace ImageView
