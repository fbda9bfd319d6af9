// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/CPixelRows.h"

#include <Nerix/CGrabResultData.h>

#include <QDateTime>
#include <QImage>

namespace ImageView {

/// What is seen of a camera.
struct ShownImage
{
    Nerix::CGrabResultPtr
        result;     ///< with the pixels as they were sent; null before the first image
    QDateTime time; ///< when it came, in UTC
    QImage screen;  ///< what is drawn; null if there is a problem, and before
    Problem problem = Problem::None;
};

} // namespace ImageView
