// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CNumberEdit.h"

#include <QLineEdit>
#include <QPalette>

namespace FeatureTree {

namespace {

// Readable on a light ground and on a dark one.
QColor refusedColour(const QColor &ground)
{
    return ground.lightness() < 128 ? QColor(255, 130, 130) : QColor(190, 0, 0);
}

} // namespace

CNumberEdit::CNumberEdit(QWidget *parent)
    : QAbstractSpinBox(parent)
{
    setFrame(false);
    setKeyboardTracking(false);
    connect(lineEdit(), &QLineEdit::textChanged, this, &CNumberEdit::markText);
}

CNumberEdit::~CNumberEdit() = default;

void CNumberEdit::setText(const QString &text)
{
    lineEdit()->setText(text);
    lineEdit()->selectAll();
}

void CNumberEdit::stepBy(int steps)
{
    if (!number().isNull() || text().trimmed().isEmpty()) {
        setText(stepped(number(), steps));
    }
}

QAbstractSpinBox::StepEnabled CNumberEdit::stepEnabled() const
{
    return StepUpEnabled | StepDownEnabled;
}

void CNumberEdit::markText()
{
    QPalette marked = palette();
    if (!isAllowed(number())) {
        marked.setColor(QPalette::Text, refusedColour(marked.color(QPalette::Base)));
    }
    lineEdit()->setPalette(marked);
}

} // namespace FeatureTree
