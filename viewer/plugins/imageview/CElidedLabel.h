// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "windows/CPlainLabel.h"

namespace ImageView {

/// One line of plain text that is cut short with an ellipsis where there is no room for all of it,
/// so that it asks for none. Readers of the screen get all of it. GUI thread.
class CElidedLabel : public Windows::CPlainLabel
{
    Q_OBJECT

public:
    explicit CElidedLabel(Qt::TextElideMode mode, QWidget *parent = nullptr);
    ~CElidedLabel() override;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Qt::TextElideMode m_mode;
};

} // namespace ImageView
