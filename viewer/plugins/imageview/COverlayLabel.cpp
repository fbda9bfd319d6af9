// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/COverlayLabel.h"

#include <QPainter>

namespace ImageView {

namespace {

constexpr int textMargin = 6;
constexpr int cornerRadius = 3;
const QColor darkGround(0, 0, 0, 170);

} // namespace

COverlayLabel::COverlayLabel(Ground ground, QWidget *parent)
    : CPlainLabel(parent)
    , m_ground(ground)
{
    QPalette light = palette();
    light.setColor(QPalette::WindowText, Qt::white);
    setPalette(light);
    setWordWrap(true);
    setMargin(textMargin);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

COverlayLabel::~COverlayLabel() = default;

void COverlayLabel::paintEvent(QPaintEvent *event)
{
    if (m_ground == Ground::Dark) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(darkGround);
        painter.drawRoundedRect(rect(), cornerRadius, cornerRadius);
    }
    CPlainLabel::paintEvent(event);
}

} // namespace ImageView
