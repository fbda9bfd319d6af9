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

// Where the side begins if the place `fixed` of the image is at `anchor`: at a whole pixel, yet
// such that it is the same pixel of the image. Beside the image there is nothing to keep.
double anchored(double anchor, double fixed, double scale, double view, double image)
{
    const double origin = anchor - fixed * scale;
    if (fixed < 0 || fixed > image) {
        return settled(origin, view, image * scale);
    }
    if (scale < 1) {
        return origin; // there the pixels of the image are smoothed
    }
    const double pixel = std::floor(fixed);
    const double lowest = std::floor(anchor - (pixel + 1) * scale) + 1;
    const double highest = std::floor(anchor - pixel * scale);
    return std::clamp(std::round(origin), lowest, highest);
}

// With edges no further in the view than at the scale `fitting`, which is a smaller one.
double bounded(double origin, double view, double image, double scale, double fitting)
{
    const double band = std::floor((view - image * fitting) / 2);
    return std::clamp(origin, std::ceil(view - image * scale - band), band);
}

// An edge that is in the view already may stay there.
double panned(double origin, double distance, double view, double image)
{
    const double settledOrigin = settled(origin, view, image);
    const double lowest = std::min(origin, image <= view ? settledOrigin : view - image);
    const double highest = std::max(origin, image <= view ? settledOrigin : 0.0);
    return std::clamp(std::round(origin + distance), lowest, highest);
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
    const double before = m_scale;
    m_isFit = false;
    m_scale = std::clamp(scale, smallest, largest);
    m_origin = {
        anchored(anchor.x(), fixed.x(), m_scale, m_viewSize.width(), m_imageSize.width()),
        anchored(anchor.y(), fixed.y(), m_scale, m_viewSize.height(), m_imageSize.height())};
    if (m_scale < before) {
        boundBands();
    }
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
    const QSizeF image = m_imageSize * m_scale;
    m_origin = {panned(m_origin.x(), distance.x(), m_viewSize.width(), image.width()),
                panned(m_origin.y(), distance.y(), m_viewSize.height(), image.height())};
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

// To the width of the bands that are beside the image when it is fitted.
void CViewTransform::boundBands()
{
    const double fitting = fittingScale();
    if (m_scale <= fitting) {
        settle();
        return;
    }
    m_origin = {bounded(m_origin.x(), m_viewSize.width(), m_imageSize.width(), m_scale, fitting),
                bounded(m_origin.y(), m_viewSize.height(), m_imageSize.height(), m_scale, fitting)};
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
