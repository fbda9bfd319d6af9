// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/ImageConversion.h"

#include "plugins/imageview/CPixelRows.h"

#include <cstdint>

#include <QRect>

namespace ImageView {

namespace {

constexpr int screenBits = 8;
constexpr int wideBits = 16;
constexpr quint64 opaque = 0xFFFF000000000000U;

void writeScreenRow(const std::uint16_t *values, int width, int channels, int shift, QRgb *out)
{
    if (channels == 1) {
        for (int x = 0; x < width; ++x) {
            out[x] = 0xFF000000U | static_cast<QRgb>(values[x] >> shift) * 0x010101U;
        }
        return;
    }
    for (int x = 0; x < width; ++x, values += 3) {
        out[x] = qRgb(values[0] >> shift, values[1] >> shift, values[2] >> shift);
    }
}

void writeByteRow(const std::uint16_t *values, int count, uchar *out)
{
    for (int i = 0; i < count; ++i) {
        out[i] = static_cast<uchar>(values[i]);
    }
}

void writeWideGreyRow(const std::uint16_t *values, int width, int shift, quint16 *out)
{
    for (int x = 0; x < width; ++x) {
        out[x] = static_cast<quint16>(values[x] << shift);
    }
}

void writeWideColorRow(const std::uint16_t *values, int width, int shift, quint64 *out)
{
    for (int x = 0; x < width; ++x, values += 3) {
        out[x] = opaque | static_cast<quint64>(values[2] << shift) << 32U
                 | static_cast<quint64>(values[1] << shift) << 16U
                 | static_cast<quint64>(values[0] << shift);
    }
}

QImage::Format fileFormat(bool isWide, bool isGrey)
{
    if (isWide) {
        return isGrey ? QImage::Format_Grayscale16 : QImage::Format_RGBX64;
    }
    return isGrey ? QImage::Format_Grayscale8 : QImage::Format_RGB888;
}

} // namespace

QImage screenImage(const Nerix::CImage &image)
{
    if (problemOf(image) != Problem::None) {
        return {};
    }
    CPixelRows rows(image);
    QImage screen(image.width, image.height, QImage::Format_RGB32);
    for (int y = 0; y < screen.height(); ++y) {
        writeScreenRow(rows.row(y), screen.width(), rows.channels(), rows.bits() - screenBits,
                       reinterpret_cast<QRgb *>(screen.scanLine(y)));
    }
    return screen;
}

QImage fileImage(const Nerix::CImage &image)
{
    if (problemOf(image) != Problem::None) {
        return {};
    }
    CPixelRows rows(image);
    const bool isWide = rows.bits() > screenBits;
    const bool isGrey = rows.channels() == 1;
    const int shift = wideBits - rows.bits();
    QImage file(image.width, image.height, fileFormat(isWide, isGrey));
    for (int y = 0; y < file.height(); ++y) {
        const std::uint16_t *values = rows.row(y);
        uchar *line = file.scanLine(y);
        if (!isWide) {
            writeByteRow(values, file.width() * rows.channels(), line);
        } else if (isGrey) {
            writeWideGreyRow(values, file.width(), shift, reinterpret_cast<quint16 *>(line));
        } else {
            writeWideColorRow(values, file.width(), shift, reinterpret_cast<quint64 *>(line));
        }
    }
    return file;
}

QVector<int> valuesAt(const Nerix::CImage &image, const QPoint &position)
{
    if (problemOf(image) != Problem::None
        || !QRect(0, 0, image.width, image.height).contains(position)) {
        return {};
    }
    CPixelRows rows(image);
    const std::uint16_t *row = rows.row(position.y());
    QVector<int> values;
    for (int channel = 0; channel < rows.channels(); ++channel) {
        values.append(row[position.x() * rows.channels() + channel]);
    }
    return values;
}

} // namespace ImageView
