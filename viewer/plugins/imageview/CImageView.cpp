// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CImageView.h"

#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace ImageView {

namespace {

constexpr int wheelStep = QWheelEvent::DefaultDeltasPerStep;
constexpr double panPart = 0.1; // of the view, for one press of a key
constexpr QPoint nowhere(-1, -1);

// The same in light and in dark, since it changes how bright an image seems to be.
const QColor ground(0x3a, 0x3a, 0x3a);

QPoint direction(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

QPoint pixelAt(const QPointF &place)
{
    return {int(std::floor(place.x())), int(std::floor(place.y()))};
}

} // namespace

CImageView::CImageView(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setMinimumSize(96, 64);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

CImageView::~CImageView() = default;

void CImageView::setImage(const ShownImage &image)
{
    m_image = image;
    const double before = m_transform.scale();
    m_transform.setImageSize(image.screen.size());
    m_pointer = pointerNow();
    if (m_transform.scale() != before) {
        Q_EMIT transformChanged();
    }
    Q_EMIT pointerChanged();
    update();
}

const ShownImage &CImageView::image() const
{
    return m_image;
}

const CViewTransform &CImageView::transform() const
{
    return m_transform;
}

QPoint CImageView::pointer() const
{
    return m_pointer;
}

QRectF CImageView::imageRect() const
{
    const QRectF rect = m_transform.imageRect();
    return {rect.topLeft() / devicePixelRatioF(), rect.size() / devicePixelRatioF()};
}

void CImageView::fit()
{
    changeTransform([this] { m_transform.fit(); });
}

void CImageView::showActualSize()
{
    changeTransform([this] { m_transform.setScale(1.0, middle()); });
}

void CImageView::zoomIn()
{
    changeTransform([this] { m_transform.stepIn(middle()); });
}

void CImageView::zoomOut()
{
    changeTransform([this] { m_transform.stepOut(middle()); });
}

template <class Change>
void CImageView::changeTransform(Change change)
{
    change();
    Q_EMIT transformChanged();
    setPointer(pointerNow(), m_isPointerByKey);
    update();
}

void CImageView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), ground);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    if (!m_image.screen.isNull()) {
        painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
        drawImage(painter);
        drawPointer(painter);
    }
}

// Only the pixels that are seen, whole ones, so that their edges do not move with the view's.
void CImageView::drawImage(QPainter &painter) const
{
    const double scale = m_transform.scale();
    const QPointF origin = m_transform.imageRect().topLeft();
    const QPoint first = pixelAt(m_transform.toImage({0, 0}));
    const QPoint last = pixelAt(m_transform.toImage(toScreen({double(width()), double(height())})));
    const QRect seen = QRect(first, last).intersected(m_image.screen.rect());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale < 1.0);
    painter.drawImage(QRectF(origin + QPointF(seen.topLeft()) * scale, QSizeF(seen.size()) * scale),
                      m_image.screen, seen);
}

// The mouse shows where it is by itself.
void CImageView::drawPointer(QPainter &painter) const
{
    if (!m_isPointerByKey || m_pointer == nowhere) {
        return;
    }
    const double scale = m_transform.scale();
    const double size = std::max(scale, 8.0 * devicePixelRatioF());
    const QPointF center =
        m_transform.imageRect().topLeft() + (QPointF(m_pointer) + QPointF(0.5, 0.5)) * scale;
    const QRectF frame(center - QPointF(size, size) / 2, QSizeF(size, size));
    painter.setPen(QPen(Qt::black, 3 * devicePixelRatioF()));
    painter.drawRect(frame);
    painter.setPen(QPen(Qt::white, devicePixelRatioF()));
    painter.drawRect(frame);
}

void CImageView::resizeEvent(QResizeEvent *)
{
    changeTransform([this] { m_transform.setViewSize(QSizeF(size()) * devicePixelRatioF()); });
}

void CImageView::wheelEvent(QWheelEvent *event)
{
    m_wheelAngle += event->angleDelta().y();
    const QPointF anchor = toScreen(event->position());
    for (; m_wheelAngle >= wheelStep; m_wheelAngle -= wheelStep) {
        changeTransform([&] { m_transform.stepIn(anchor); });
    }
    for (; m_wheelAngle <= -wheelStep; m_wheelAngle += wheelStep) {
        changeTransform([&] { m_transform.stepOut(anchor); });
    }
    followMouse(event->position());
    event->accept();
}

void CImageView::mousePressEvent(QMouseEvent *event)
{
    m_isDragging = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
    m_dragPosition = event->pos();
    Q_EMIT activated();
}

void CImageView::mouseMoveEvent(QMouseEvent *event)
{
    if (m_isDragging) {
        const QPoint distance = event->pos() - m_dragPosition;
        m_dragPosition = event->pos();
        changeTransform([&] { m_transform.pan(toScreen(distance)); });
        setCursor(Qt::ClosedHandCursor);
    }
    followMouse(event->localPos());
}

void CImageView::mouseReleaseEvent(QMouseEvent *)
{
    m_isDragging = false;
    unsetCursor();
}

void CImageView::mouseDoubleClickEvent(QMouseEvent *)
{
    fit();
}

// The view may have come under a mouse that stands still.
void CImageView::enterEvent(QEvent *event)
{
    m_mouse = static_cast<QEnterEvent *>(event)->localPos();
    setPointer(pointerNow(), m_isPointerByKey);
}

void CImageView::leaveEvent(QEvent *)
{
    m_mouse.reset();
    if (!m_isPointerByKey) {
        setPointer(nowhere, false);
    }
}

void CImageView::keyPressEvent(QKeyEvent *event)
{
    if (moveByKey(*event)) {
        return;
    }
    switch (event->key()) {
    case Qt::Key_Plus:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_Home:
        fit();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void CImageView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
        Q_EMIT activated();
    }
}

void CImageView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    m_isDragging = false;
}

bool CImageView::moveByKey(const QKeyEvent &event)
{
    const QPoint step = direction(event.key());
    if (step.isNull() || m_image.screen.isNull()) {
        return false;
    }
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        const bool isNew = m_pointer == nowhere;
        const QPoint pixel = isNew ? pixelAt(m_transform.toImage(middle())) : m_pointer + step;
        if (m_image.screen.rect().contains(pixel)) {
            setPointer(pixel, true);
        }
    } else {
        const QSizeF part = QSizeF(size()) * panPart;
        changeTransform([&] {
            m_transform.pan(toScreen({-step.x() * part.width(), -step.y() * part.height()}));
        });
    }
    return true;
}

void CImageView::followMouse(const QPointF &place)
{
    m_mouse = place;
    m_isPointerByKey = false;
    setPointer(pointerNow(), false);
}

// Another pixel comes under a mouse that stands still; one that was chosen by key stays chosen.
QPoint CImageView::pointerNow() const
{
    QPoint pixel = m_pointer;
    if (!m_isPointerByKey) {
        pixel = m_mouse ? pixelAt(m_transform.toImage(toScreen(*m_mouse))) : nowhere;
    }
    return m_image.screen.rect().contains(pixel) ? pixel : nowhere;
}

void CImageView::setPointer(const QPoint &pixel, bool isByKey)
{
    const QPoint inside = m_image.screen.rect().contains(pixel) ? pixel : nowhere;
    if (m_isPointerByKey || isByKey) {
        update();
    }
    m_isPointerByKey = isByKey;
    if (m_pointer != inside) {
        m_pointer = inside;
        Q_EMIT pointerChanged();
    }
}

QPointF CImageView::toScreen(const QPointF &position) const
{
    return position * devicePixelRatioF();
}

QPointF CImageView::middle() const
{
    return toScreen({width() / 2.0, height() / 2.0});
}

} // namespace ImageView
