// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

class QImage;

// The part of the pixels of two pictures that differ visibly; all, if the sizes do.
double pictureDifference(const QImage &one, const QImage &other);

// The part that may: what another version of a font changes at the edges of letters.
constexpr double pictureTolerance = 0.004;
