// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CImageArea.h"

#include "plugins/cameraselector/IDeviceSelectionService.h"
#include "plugins/imageview/CImagePane.h"
#include "plugins/imageview/CImageView.h"
#include "plugins/imageview/CLiveCamera.h"
#include "plugins/imageview/CLiveImages.h"
#include "windows/CPlainLabel.h"
#include "windows/OnLanguageChange.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QGridLayout>
#include <QStackedLayout>
#include <QVBoxLayout>

namespace ImageView {

namespace {

constexpr int paneGap = 4;
constexpr int welcomeMargin = 32;
constexpr double titleSize = 1.6; // of the usual text

} // namespace

CImageArea::CImageArea(CLiveImages &images,
                       QSharedPointer<CameraSelector::IDeviceSelectionService> selection,
                       QWidget *parent)
    : QWidget(parent)
    , m_selection(std::move(selection))
    , m_images(images)
    , m_layout(new QStackedLayout(this))
    , m_panesPage(new QWidget(this))
{
    m_layout->addWidget(newWelcome());
    m_layout->addWidget(m_panesPage);
    connect(&images, &CLiveImages::cameraAdded, this, &CImageArea::addPane);
    connect(&images, &CLiveImages::cameraRemoved, this, &CImageArea::removePane);
    connect(m_selection.data(), &CameraSelector::IDeviceSelectorService::selectionChanged, this,
            &CImageArea::showSelection);
    Windows::onLanguageChange(this, [this] { setAccessibleName(tr("Images")); });
    const auto cameras = images.cameras();
    for (CLiveCamera *camera : cameras) {
        addPane(camera);
    }
}

CImageArea::~CImageArea() = default;

QWidget *CImageArea::newWelcome()
{
    auto *page = new QWidget(this);
    auto *title = new Windows::CPlainLabel(page);
    auto *text = new Windows::CPlainLabel(page);
    title->setObjectName(QStringLiteral("welcomeTitle"));
    text->setObjectName(QStringLiteral("welcomeText"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * titleSize);
    title->setFont(font);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(welcomeMargin, welcomeMargin, welcomeMargin, welcomeMargin);
    layout->addStretch();
    for (Windows::CPlainLabel *label : {title, text}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addStretch();
    Windows::onLanguageChange(page, [title, text] {
        title->setText(tr("Images of your cameras appear here"));
        text->setText(
            tr("Open a camera: double-click it in the list of cameras, or choose it there "
               "and press Enter.\nThen grab: F5 grabs until you stop, F6 grabs a single "
               "image."));
    });
    return page;
}

QList<CImagePane *> CImageArea::panes() const
{
    return m_panes;
}

CImagePane *CImageArea::currentPane() const
{
    const auto selected = std::find_if(m_panes.begin(), m_panes.end(),
                                       [](const CImagePane *pane) { return pane->isSelected(); });
    if (selected != m_panes.end()) {
        return *selected;
    }
    return m_panes.size() == 1 ? m_panes.constFirst() : nullptr;
}

void CImageArea::addPane(CLiveCamera *camera)
{
    auto *pane = new CImagePane(*camera, m_panesPage);
    m_panes.append(pane);
    connect(pane, &CImagePane::activated, this,
            [this, pane] { m_selection->select(pane->camera().info()); });
    connect(&pane->view(), &CImageView::transformChanged, this, &CImageArea::currentChanged);
    connect(camera, &CLiveCamera::imageChanged, this, &CImageArea::currentChanged);
    arrange();
}

void CImageArea::removePane(const CLiveCamera *camera)
{
    const auto found =
        std::find_if(m_panes.begin(), m_panes.end(),
                     [camera](const CImagePane *pane) { return &pane->camera() == camera; });
    if (found != m_panes.end()) {
        CImagePane *pane = *found;
        m_panes.erase(found);
        delete pane;
        arrange();
    }
}

// A grid would keep the rows and columns that it once had.
void CImageArea::arrange()
{
    delete m_grid;
    m_grid = new QGridLayout(m_panesPage);
    m_grid->setContentsMargins({});
    m_grid->setSpacing(paneGap);
    const int columns = int(std::ceil(std::sqrt(m_panes.size())));
    for (int i = 0; i < m_panes.size(); ++i) {
        m_grid->addWidget(m_panes.at(i), i / columns, i % columns);
        m_grid->setRowStretch(i / columns, 1);
        m_grid->setColumnStretch(i % columns, 1);
        m_panes.at(i)->show();
    }
    m_layout->setCurrentIndex(m_panes.isEmpty() ? 0 : 1);
    showSelection();
}

void CImageArea::showSelection()
{
    const CLiveCamera *selected = m_images.find(m_selection->selected());
    for (CImagePane *pane : qAsConst(m_panes)) {
        pane->setSelected(&pane->camera() == selected);
    }
    Q_EMIT currentChanged();
}

} // namespace ImageView
