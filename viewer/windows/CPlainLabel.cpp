// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/CPlainLabel.h"

#include "windows/ShownText.h"

namespace Windows {

CPlainLabel::CPlainLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

CPlainLabel::CPlainLabel(const QString &text, QWidget *parent)
    : CPlainLabel(parent)
{
    setText(text);
}

CPlainLabel::~CPlainLabel() = default;

void CPlainLabel::setText(const QString &text)
{
    QLabel::setText(shownText(text));
}

} // namespace Windows
