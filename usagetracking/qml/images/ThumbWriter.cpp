// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// Draws an image of the consent page from its vector source, while the plug-in is built: in the
// colour and the direction that is asked for, with transparency around it.

#include <QColor>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QTextStream>

namespace {

constexpr int edge = 80;

int fail(const QString &message)
{
    QTextStream(stderr) << "thumb-writer: " << message << '\n';
    return 1;
}

// The drawing is a silhouette: it has one colour, and only its transparency is of interest.
QImage coloured(const QImage &silhouette, const QColor &colour)
{
    QImage image(silhouette.size(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QColor pixel = colour;
            pixel.setAlpha(qAlpha(silhouette.pixel(x, y)));
            image.setPixelColor(x, y, pixel);
        }
    }
    return image;
}

} // namespace

int main(int argc, char *argv[])
{
    const QString direction = argc == 5 ? QString::fromLocal8Bit(argv[2]) : QString();
    const bool down = direction == QLatin1String("down");
    if (!down && direction != QLatin1String("up")) {
        return fail(QStringLiteral("usage: thumb-writer SOURCE.svg up|down COLOUR OUT.png"));
    }
    const QColor colour(QString::fromLocal8Bit(argv[3]));
    if (!colour.isValid()) {
        return fail(QStringLiteral("%1: no colour, write one as #rrggbb")
                        .arg(QString::fromLocal8Bit(argv[3])));
    }
    QImageReader reader(QString::fromLocal8Bit(argv[1]));
    reader.setScaledSize({edge, edge});
    const QImage silhouette = reader.read();
    if (silhouette.isNull()) {
        return fail(QStringLiteral("%1: %2; Qt needs its SVG image plug-in (libqt5svg5)")
                        .arg(reader.fileName(), reader.errorString()));
    }
    const QString target = QString::fromLocal8Bit(argv[4]);
    if (!coloured(silhouette, colour).mirrored(false, down).save(target, "PNG")) {
        return fail(QStringLiteral("%1: cannot be written").arg(target));
    }
    return 0;
}
