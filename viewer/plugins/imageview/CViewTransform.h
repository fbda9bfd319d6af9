// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QSizeF>

namespace ImageView {

/// Where the image lies in its view: fitted into it, or magnified and moved. All sizes and places
/// of the view are in pixels of the screen, so that 100 % is one of them for each pixel of the
/// image.
///
/// A side on which the image is smaller than the view is centred; on the other the image covers the
/// view. Only the place at the anchor of a scale comes before that, so that who magnifies keeps
/// what they look at. A value type.
class CViewTransform
{
public:
    void setViewSize(const QSizeF &size);

    /// The middle of the image stays where it is, as far as the new size allows.
    void setImageSize(const QSize &size);

    /// Makes all of the image seen, as large as possible, also after each change of a size.
    void fit();
    bool isFit() const;

    /// Pixels of the screen for one of the image.
    double scale() const;

    /// Magnifies to \a scale; the place of the image that is at \a anchor of the view stays there,
    /// up to a fraction of a pixel of the image. On the way out no edge of the image comes further
    /// into the view than it is when the image is fitted, so that it ends in the middle.
    void setScale(double scale, const QPointF &anchor);

    /// To the next larger or smaller of some round scales.
    void stepIn(const QPointF &anchor);
    void stepOut(const QPointF &anchor);

    /// Whether there is a next one.
    bool canStepIn() const;
    bool canStepOut() const;

    /// Moves the image, but none of its edges further into the view.
    void pan(const QPointF &distance);

    /// The place in the image, in its pixels, that is at \a point of the view.
    QPointF toImage(const QPointF &point) const;

    /// What the whole image covers in the view, or beyond it.
    QRectF imageRect() const;

private:
    double fittingScale() const;
    void settle();
    void boundBands();

    QSizeF m_viewSize;
    QSizeF m_imageSize;
    QPointF m_origin; // of the image in the view
    double m_scale = 1.0;
    bool m_isFit = true;
};

} // namespace ImageView
