// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/grabbing/GrabFigures.h"

#include <QLocale>
#include <QString>

namespace Grabbing {

/// The figures as a user reads them, each with its unit, numbers as \a locale writes them.
struct FigureTexts
{
    QString images;
    QString failures;
    QString imageRate;
    QString dataRate;
};

FigureTexts figureTexts(const GrabFigures &figures, const QLocale &locale);

} // namespace Grabbing
