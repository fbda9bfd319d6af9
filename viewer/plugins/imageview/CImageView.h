// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/imageview/CViewTransform.h"
#include "plugins/imageview/ShownImage.h"

#include <optional>

#include <QWidget>

namespace ImageView {

/// Draws one image, fitted or magnified; magnified pixels are crisp squares. GUI thread.
///
/// | input                          | effect                                     |
/// |--------------------------------|--------------------------------------------|
/// | wheel                          | zooms, to the pixel under the mouse        |
/// | plus and minus                 | zooms, to the middle of the view           |
/// | drag, arrow keys               | moves the image                            |
/// | Ctrl with arrow keys           | moves the pointer from pixel to pixel      |
/// | Home, double click             | fits the image into the view               |
///
/// The pointer is the pixel that is under the mouse, or was moved to by keys.
class CImageView : public QWidget
{
    Q_OBJECT

public:
    explicit CImageView(QWidget *parent = nullptr);
    ~CImageView() override;

    /// Shows \a image from now on; one without a `screen` leaves the view empty.
    void setImage(const ShownImage &image);
    const ShownImage &image() const;

    const CViewTransform &transform() const;

    /// The pixel of the image of which the user wants to know; (-1, -1) if there is none.
    QPoint pointer() const;

    /// The drawn image, in device-independent pixels.
    QRectF imageRect() const;

public Q_SLOTS:
    void fit();
    void showActualSize();

    /// To the next step; the middle of the view stays where it is.
    void zoomIn();
    void zoomOut();

Q_SIGNALS:
    void transformChanged();

    /// The user has clicked the view, or come to it by key.
    void activated();

    /// The pointer moved, or there is another image under it.
    void pointerChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    template <class Change>
    void changeTransform(Change change);
    bool moveByKey(const QKeyEvent &event);
    void followMouse(const QPointF &place);
    QPoint pointerNow() const;
    void setPointer(const QPoint &pixel, bool isByKey);
    void drawImage(QPainter &painter) const;
    void drawPointer(QPainter &painter) const;
    QPointF toScreen(const QPointF &position) const;
    QPointF middle() const;

    ShownImage m_image;
    CViewTransform m_transform;
    QPoint m_pointer{-1, -1};
    std::optional<QPointF> m_mouse; // while it is over the view
    QPoint m_dragPosition;
    int m_wheelAngle = 0; // of a wheel that turns in parts of a step
    bool m_isDragging = false;
    bool m_isPointerByKey = false;
};

} // namespace ImageView
