// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/FigureTexts.h"

#include <limits>

#include <QCoreApplication>

namespace Grabbing {

namespace {

constexpr int decimals = 1;
constexpr int fewestForARate = 2;

QString text(const char *source)
{
    return QCoreApplication::translate("Grabbing::Figures", source);
}

QString dataSize(quint64 bytes, const QLocale &locale)
{
    constexpr auto limit = static_cast<quint64>(std::numeric_limits<qint64>::max());
    return locale.formattedDataSize(static_cast<qint64>(qMin(bytes, limit)), decimals,
                                    QLocale::DataSizeSIFormat);
}

} // namespace

FigureTexts figureTexts(const GrabFigures &figures, const QLocale &locale)
{
    FigureTexts texts;
    texts.images = text(QT_TRANSLATE_NOOP("Grabbing::Figures", "Images: %1"))
                       .arg(locale.toString(figures.imagesGrabbed));
    texts.failures = text(QT_TRANSLATE_NOOP("Grabbing::Figures", "Failed: %1"))
                         .arg(locale.toString(figures.imagesFailed));
    if (!figures.isRunning || figures.imagesGrabbed < fewestForARate) {
        return texts;
    }
    texts.imageRate = text(QT_TRANSLATE_NOOP("Grabbing::Figures", "%1 images/s"))
                          .arg(locale.toString(figures.imagesPerSecond, 'f', decimals));
    texts.dataRate = text(QT_TRANSLATE_NOOP("Grabbing::Figures", "%1/s"))
                         .arg(dataSize(figures.bytesPerSecond, locale));
    return texts;
}

} // namespace Grabbing
