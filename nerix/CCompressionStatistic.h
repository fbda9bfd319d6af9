// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>

/// How much the camera's compression saved. All zero for a camera that does not compress.
struct CCompressionStatistic
{
    double compressionRatio = 0.0; ///< compressed size / original size, 0 when unknown
    double minimumRatio = 0.0;     ///< smallest ratio since the start of the grab
    double maximumRatio = 0.0;     ///< largest ratio since the start of the grab
};

Q_DECLARE_METATYPE(CCompressionStatistic)
