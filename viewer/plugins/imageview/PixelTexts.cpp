// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/PixelTexts.h"

#include "plugins/imageview/ImageConversion.h"

#include <cmath>

#include <QCoreApplication>
#include <QLocale>

namespace ImageView {

namespace {

constexpr int colorCount = 3;

// The names of the channels are the same in every language.
QString valuesText(const QVector<int> &values)
{
    if (values.size() < colorCount) {
        return QString::number(values.value(0));
    }
    return QStringLiteral("R %1, G %2, B %3").arg(values.at(0)).arg(values.at(1)).arg(values.at(2));
}

QString scaleText(double scale)
{
    const double percent = scale * 100;
    const int decimals = percent < 10 && percent != std::floor(percent) ? 1 : 0;
    return QLocale().toString(percent, 'f', decimals);
}

} // namespace

QString pixelText(const ShownImage &image, const QPoint &position)
{
    const QVector<int> values =
        image.result ? valuesAt(image.result->image(), position) : QVector<int>();
    if (values.isEmpty()) {
        return {};
    }
    return QStringLiteral("x %1, y %2: %3")
        .arg(QString::number(position.x()), QString::number(position.y()), valuesText(values));
}

QString formatText(const ShownImage &image, double scale)
{
    if (image.screen.isNull()) {
        return {};
    }
    const Nerix::CImage &pixels = image.result->image();
    return QStringLiteral("%1 \u00d7 %2, %3, %4 %")
        .arg(QString::number(pixels.width), QString::number(pixels.height),
             pixelFormatName(pixels.pixelFormat), scaleText(scale));
}

QString problemText(const ShownImage &image)
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("ImageView::Problem", source);
    };
    const std::uint32_t code = image.result ? image.result->image().pixelFormat : 0;
    switch (image.problem) {
    case Problem::None:
        break;
    case Problem::NoPixels:
        return text(QT_TRANSLATE_NOOP("ImageView::Problem",
                                      "What the camera sends is not an image: choose image data "
                                      "in its features."));
    case Problem::UnknownFormat:
        return text(QT_TRANSLATE_NOOP("ImageView::Problem",
                                      "The pixel format %1 cannot be shown: choose another one in "
                                      "the camera's features, such as Mono8, BayerRG8 or RGB8."))
            .arg(pixelFormatName(code));
    case Problem::TooFewBytes:
        return text(QT_TRANSLATE_NOOP("ImageView::Problem",
                                      "The image has fewer bytes than its size and its pixel "
                                      "format %1 ask for: stop the grab and start it again."))
            .arg(pixelFormatName(code));
    }
    return {};
}

} // namespace ImageView
