// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "windows/CPlainLabel.h"

namespace ImageView {

/// Words over an image view: light, and over an image on a dark, translucent ground, so that they
/// are read on every image and in every palette. The mouse goes through it. GUI thread.
class COverlayLabel : public Windows::CPlainLabel
{
    Q_OBJECT

public:
    enum class Ground { None, Dark };

    explicit COverlayLabel(Ground ground, QWidget *parent = nullptr);
    ~COverlayLabel() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Ground m_ground;
};

} // namespace ImageView
