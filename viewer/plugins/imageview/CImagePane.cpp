// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CImagePane.h"

#include "plugins/imageview/CElidedLabel.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/COverlayLabel.h"
#include "plugins/imageview/PixelTexts.h"
#include "windows/OnLanguageChange.h"
#include "windows/ShownText.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace ImageView {

namespace {

constexpr int frameWidth = 2;
constexpr int smallGap = 6;

CElidedLabel *newLabel(QWidget *parent, const char *name, Qt::TextElideMode mode)
{
    auto *label = new CElidedLabel(mode, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

} // namespace

CImagePane::CImagePane(CLiveCamera &camera, QWidget *parent)
    : QWidget(parent)
    , m_camera(camera)
    , m_view(new CImageView(this))
    , m_name(newLabel(this, "name", Qt::ElideMiddle))
    , m_words(new COverlayLabel(COverlayLabel::Ground::None, m_view))
    , m_failure(new COverlayLabel(COverlayLabel::Ground::Dark, m_view))
    , m_pixel(newLabel(this, "pixel", Qt::ElideRight))
    , m_format(newLabel(this, "format", Qt::ElideLeft))
{
    build();
    connect(&m_camera, &CLiveCamera::nameChanged, this, &CImagePane::retranslate);
    connect(&m_camera, &CLiveCamera::imageChanged, this, &CImagePane::showImage);
    connect(&m_camera, &CLiveCamera::stateChanged, this, &CImagePane::showState);
    connect(m_view, &CImageView::pointerChanged, this, &CImagePane::showPointer);
    connect(m_view, &CImageView::transformChanged, this, &CImagePane::showFormat);
    connect(m_view, &CImageView::activated, this, &CImagePane::activated);
    Windows::onLanguageChange(this, [this] { retranslate(); });
    showImage();
}

CImagePane::~CImagePane() = default;

void CImagePane::build()
{
    auto *footer = new QHBoxLayout;
    footer->setContentsMargins(smallGap, 1, smallGap, 1);
    footer->addWidget(m_pixel, 1);
    footer->addWidget(m_format);
    m_name->setMargin(smallGap);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(frameWidth, frameWidth, frameWidth, frameWidth);
    layout->setSpacing(0);
    layout->addWidget(m_name);
    layout->addWidget(m_view, 1);
    layout->addLayout(footer);

    m_words->setObjectName(QStringLiteral("words"));
    m_words->setAlignment(Qt::AlignCenter);
    m_failure->setObjectName(QStringLiteral("failure"));
    auto *overlays = new QVBoxLayout(m_view);
    overlays->addStretch();
    overlays->addWidget(m_words);
    overlays->addStretch();
    overlays->addWidget(m_failure);
}

CLiveCamera &CImagePane::camera() const
{
    return m_camera;
}

CImageView &CImagePane::view() const
{
    return *m_view;
}

void CImagePane::setSelected(bool isSelected)
{
    m_isSelected = isSelected;
    QFont font = m_name->font();
    font.setBold(isSelected);
    m_name->setFont(font);
    m_name->setForegroundRole(isSelected ? QPalette::HighlightedText : QPalette::WindowText);
    update();
}

bool CImagePane::isSelected() const
{
    return m_isSelected;
}

// The selected pane has a frame, and its name stands on the same ground.
void CImagePane::paintEvent(QPaintEvent *)
{
    if (!m_isSelected) {
        return;
    }
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Highlight);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    painter.fillRect(QRect(0, 0, width(), m_name->geometry().bottom() + 1), color);
    painter.setPen(QPen(color, frameWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void CImagePane::mousePressEvent(QMouseEvent *)
{
    Q_EMIT activated();
    m_view->setFocus(Qt::MouseFocusReason);
}

void CImagePane::retranslate()
{
    const QString name = Windows::shownLine(m_camera.name());
    m_name->setText(name);
    m_name->setToolTip(Windows::toolTipText(m_camera.info()->identity()));
    setAccessibleName(name);
    m_view->setAccessibleName(tr("Image of %1").arg(name));
    m_pixel->setAccessibleName(tr("Pixel under the pointer"));
    m_format->setAccessibleName(tr("Size, format and scale of the image"));
    showImage();
}

void CImagePane::showImage()
{
    m_view->setImage(m_camera.image());
    showFormat();
    showState();
}

void CImagePane::showState()
{
    const QString words = wordsForNoImage();
    m_words->setText(words);
    m_words->setVisible(!words.isEmpty());
    m_view->setAccessibleDescription(Windows::shownText(words));

    const int failures = m_camera.failureCount();
    m_failure->setVisible(failures > 0);
    if (failures > 0) {
        m_failure->setText(tr("Failed images: %1. The last one: %2")
                               .arg(QLocale().toString(failures), m_camera.lastFailure()));
    }
}

QString CImagePane::wordsForNoImage() const
{
    const ShownImage &image = m_camera.image();
    if (image.problem != Problem::None) {
        return problemText(image);
    }
    if (image.result) {
        return {};
    }
    return m_camera.isGrabbing() ? tr("No image yet") : tr("Grab to see an image");
}

void CImagePane::showPointer()
{
    m_pixel->setText(pixelText(m_view->image(), m_view->pointer()));
}

void CImagePane::showFormat()
{
    m_format->setText(formatText(m_view->image(), m_view->transform().scale()));
}

} // namespace ImageView
