// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CViewEntries.h"

#include "plugins/imageview/CImageArea.h"
#include "plugins/imageview/CImagePane.h"
#include "plugins/imageview/CImageView.h"
#include "windows/MenuEntry.h"

#include <QAction>

namespace ImageView {

namespace {

Windows::MenuEntry viewEntry(const char *id, const QKeySequence &shortcut)
{
    return {id, "NerixViewer.Menu.View", "NerixViewer.Group.View.Image", shortcut};
}

} // namespace

CViewEntries::CViewEntries(Plugin::AppCore::IMenuService &menus, CImageArea *area)
    : m_area(area)
{
    addViewEntries(menus);
    m_save = Windows::addMenuEntry(
        menus,
        {"ImageView.Action.SaveImage", "NerixViewer.Menu.File", "NerixViewer.Group.File.Image",
         QKeySequence(Qt::CTRL + Qt::Key_S)},
        [] { return tr("&Save Image..."); }, this);
    connect(m_save, &QAction::triggered, this, &CViewEntries::saveRequested);
    if (m_area) {
        connect(m_area, &CImageArea::currentChanged, this, &CViewEntries::update);
    }
    update();
}

CViewEntries::~CViewEntries() = default;

void CViewEntries::addViewEntries(Plugin::AppCore::IMenuService &menus)
{
    const auto add = [&](const Windows::MenuEntry &entry, auto text, auto slot) {
        QAction *action = Windows::addMenuEntry(menus, entry, text, this);
        connect(action, &QAction::triggered, this, [this, slot] {
            if (CImageView *view = currentView()) {
                (view->*slot)();
            }
        });
        return action;
    };
    m_fit = add(
        viewEntry("ImageView.Action.Fit", Qt::CTRL + Qt::Key_0), [] { return tr("&Fit Image"); },
        &CImageView::fit);
    m_actualSize = add(
        viewEntry("ImageView.Action.ActualSize", Qt::CTRL + Qt::Key_1), [] { return tr("&100 %"); },
        &CImageView::showActualSize);
    m_zoomIn = add(
        viewEntry("ImageView.Action.ZoomIn", {}), [] { return tr("Zoom &In"); },
        &CImageView::zoomIn);
    m_zoomOut = add(
        viewEntry("ImageView.Action.ZoomOut", Qt::CTRL + Qt::Key_Minus),
        [] { return tr("Zoom &Out"); }, &CImageView::zoomOut);
    // On many keyboards plus is on the key of the equals sign.
    m_zoomIn->setShortcuts({Qt::CTRL + Qt::Key_Plus, Qt::CTRL + Qt::Key_Equal});
}

void CViewEntries::update()
{
    const CImageView *view = currentView();
    const bool hasImage = view && !view->image().screen.isNull();
    m_fit->setEnabled(hasImage && !view->transform().isFit());
    m_actualSize->setEnabled(hasImage && view->transform().scale() != 1.0);
    m_zoomIn->setEnabled(hasImage && view->transform().canStepIn());
    m_zoomOut->setEnabled(hasImage && view->transform().canStepOut());
    m_save->setEnabled(hasImage);
}

CImageView *CViewEntries::currentView() const
{
    CImagePane *pane = m_area ? m_area->currentPane() : nullptr;
    return pane ? &pane->view() : nullptr;
}

} // namespace ImageView
