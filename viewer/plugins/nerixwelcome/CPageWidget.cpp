// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CPageWidget.h"

#include "plugins/nerixwelcome/PageAccessibility.h"

#include <QFocusEvent>
#include <QQuickItem>
#include <QQuickWindow>

namespace Plugin {
namespace NerixWelcome {

namespace {

// Of a page that tells no size: enough for some lines of text.
constexpr QSizeF defaultSize(640, 400);

qreal firstOf(qreal implicitLength, qreal length, qreal otherwise)
{
    return implicitLength > 0 ? implicitLength : length > 0 ? length : otherwise;
}

QSize smallestSize(const QQuickItem &page)
{
    return QSizeF(firstOf(page.implicitWidth(), page.width(), defaultSize.width()),
                  firstOf(page.implicitHeight(), page.height(), defaultSize.height()))
        .toSize();
}

} // namespace

CPageWidget::CPageWidget(QQmlEngine &engine, QQuickItem &page, QWidget *parent)
    : QQuickWidget(&engine, parent)
    , m_page(&page)
{
    installPageAccessibility();
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(smallestSize(page));
    page.setParentItem(quickWindow()->contentItem());
    connect(quickWindow(), &QQuickWindow::activeFocusItemChanged, this, &CPageWidget::followFocus);
}

CPageWidget::~CPageWidget() = default;

QQuickItem *CPageWidget::page() const
{
    return m_page;
}

void CPageWidget::resizeEvent(QResizeEvent *event)
{
    QQuickWidget::resizeEvent(event);
    if (m_page) {
        m_page->setSize(size());
    }
}

void CPageWidget::focusInEvent(QFocusEvent *event)
{
    QQuickWidget::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    // A dialog that comes up tells its widget that it has been walked to, which nobody has done.
    const bool walked = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
    if (!walked || !hasFocus()) {
        return;
    }
    if (QQuickItem *stop = firstStop(reason == Qt::TabFocusReason)) {
        stop->forceActiveFocus(reason);
    }
}

// Qt would go round in the page for ever.
bool CPageWidget::focusNextPrevChild(bool next)
{
    const QQuickItem *current = quickWindow()->activeFocusItem();
    if (!firstStop(next) || current == firstStop(!next)) {
        return QWidget::focusNextPrevChild(next);
    }
    return QQuickWidget::focusNextPrevChild(next);
}

void CPageWidget::followFocus()
{
    const QQuickItem *item = quickWindow()->activeFocusItem();
    if (item && item->activeFocusOnTab()) {
        Q_EMIT focusMoved(item->mapRectToScene({0, 0, item->width(), item->height()}).toRect());
    }
}

QQuickItem *CPageWidget::firstStop(bool forward) const
{
    QQuickItem *stop = quickWindow()->contentItem()->nextItemInFocusChain(forward);
    return stop && stop->activeFocusOnTab() ? stop : nullptr;
}

} // namespace NerixWelcome
} // namespace Plugin
