// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CViewTransform.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ImageView {

namespace {

constexpr double steps[] = {1.0 / 32, 1.0 / 24, 1.0 / 16, 1.0 / 12, 1.0 / 8, 1.0 / 6, 0.25, 1.0 / 3,
                            0.5,      2.0 / 3,  0.75,     1.0,      1.5,     2.0,     3.0,  4.0,
                            6.0,      8.0,      12.0,     16.0,     24.0,    32.0,    48.0, 64.0};
constexpr double smallest = steps[0];
constexpr double largest = 64.0;

// A scale this near to a step counts as that step.
constexpr double tolerance = 1.001;

// Whole pixels, so that each pixel of the image is as large as its neighbour.
double settled(double origin, double view, double image)
{
    if (image <= view) {
        return std::floor((view - image) / 2);
    }
    return std::round(std::clamp(origin, view - image, 0.0));
}

} // namespace

void CViewTransform::setViewSize(const QSizeF &size)
{
    const QPointF middle((size.width() - m_viewSize.width()) / 2,
                         (size.height() - m_viewSize.height()) / 2);
    m_viewSize = size;
    m_origin += middle;
    settle();
}

void CViewTransform::setImageSize(const QSize &size)
{
    if (m_imageSize != size) {
        m_origin +=
            QPointF(m_imageSize.width() - size.width(), m_imageSize.height() - size.height())
            * m_scale / 2;
        m_imageSize = size;
        settle();
    }
}

void CViewTransform::fit()
{
    m_isFit = true;
    settle();
}

bool CViewTransform::isFit() const
{
    return m_isFit;
}

double CViewTransform::scale() const
{
    return m_scale;
}

void CViewTransform::setScale(double scale, const QPointF &anchor)
{
    const QPointF fixed = toImage(anchor);
    m_isFit = false;
    m_scale = std::clamp(scale, smallest, largest);
    m_origin = anchor - fixed * m_scale;
    settle();
}

void CViewTransform::stepIn(const QPointF &anchor)
{
    const auto *next = std::upper_bound(std::begin(steps), std::end(steps), m_scale * tolerance);
    if (next != std::end(steps)) {
        setScale(*next, anchor);
    }
}

void CViewTransform::stepOut(const QPointF &anchor)
{
    const auto *next = std::lower_bound(std::begin(steps), std::end(steps), m_scale / tolerance);
    if (next != std::begin(steps)) {
        setScale(*std::prev(next), anchor);
    }
}

bool CViewTransform::canStepIn() const
{
    return m_scale * tolerance < largest;
}

bool CViewTransform::canStepOut() const
{
    return m_scale > smallest * tolerance;
}

void CViewTransform::pan(const QPointF &distance)
{
    m_origin += distance;
    settle();
}

QPointF CViewTransform::toImage(const QPointF &point) const
{
    return (point - m_origin) / m_scale;
}

QRectF CViewTransform::imageRect() const
{
    return {m_origin, m_imageSize * m_scale};
}

double CViewTransform::fittingScale() const
{
    if (m_imageSize.isEmpty() || m_viewSize.isEmpty()) {
        return 1.0;
    }
    const double fitting = std::min(m_viewSize.width() / m_imageSize.width(),
                                    m_viewSize.height() / m_imageSize.height());
    return std::min(fitting, largest);
}

void CViewTransform::settle()
{
    if (m_isFit) {
        m_scale = fittingScale();
    }
    m_origin = {settled(m_origin.x(), m_viewSize.width(), m_imageSize.width() * m_scale),
                settled(m_origin.y(), m_viewSize.height(), m_imageSize.height() * m_scale)};
}

} // namespace ImageView
