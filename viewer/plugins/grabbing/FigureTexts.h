// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/grabbing/GrabFigures.h"

#include <QLocale>
#include <QString>

namespace Grabbing {

/// The figures as a user reads them, each with its unit. There is no rate, but an empty text, of
/// one image, which has none, and of a grab that is over, which would look as if it went on.
struct FigureTexts
{
    QString images;
    QString failures;
    QString imageRate;
    QString dataRate;
};

/// Numbers are written as \a locale writes them.
FigureTexts figureTexts(const GrabFigures &figures, const QLocale &locale);

} // namespace Grabbing
