// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "PictureDifference.h"

#include <QImage>

namespace {

// A value of a colour differs visibly from here on.
constexpr int visible = 40;

bool differsVisibly(QRgb one, QRgb other)
{
    return qAbs(qRed(one) - qRed(other)) > visible || qAbs(qGreen(one) - qGreen(other)) > visible
           || qAbs(qBlue(one) - qBlue(other)) > visible;
}

} // namespace

double pictureDifference(const QImage &one, const QImage &other)
{
    if (one.size() != other.size()) {
        return 1;
    }
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += differsVisibly(one.pixel(x, y), other.pixel(x, y)) ? 1 : 0;
        }
    }
    return double(count) / (one.width() * one.height());
}
