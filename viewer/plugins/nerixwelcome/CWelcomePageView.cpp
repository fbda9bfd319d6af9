// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CWelcomePageView.h"

#include "plugins/nerixwelcome/CPageWidget.h"
#include "windows/CPlainLabel.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QQuickItem>

namespace Plugin {
namespace NerixWelcome {

namespace {

// Between what has the keyboard and the edge of what is seen.
constexpr int margin = 12;

} // namespace

CWelcomePageView::CWelcomePageView(CWelcomePages &pages, INerixWelcomeTab &tab, QWidget *parent)
    : QScrollArea(parent)
    , m_page(pages.load(tab))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    if (m_page.item) {
        showPage(pages);
    } else {
        showError(m_page.error);
    }
    nameAfter(tab);
}

CWelcomePageView::~CWelcomePageView() = default;

QSize CWelcomePageView::sizeHint() const
{
    return widget()->minimumSize();
}

void CWelcomePageView::showPage(CWelcomePages &pages)
{
    auto *page = new CPageWidget(pages.engine(), *m_page.item, this);
    page->setObjectName(QStringLiteral("page"));
    connect(page, &CPageWidget::focusMoved, this, [this](const QRect &area) {
        ensureVisible(area.left(), area.top(), margin, margin);
        ensureVisible(area.right(), area.bottom(), margin, margin);
    });
    setWidget(page);
    setFocusProxy(page);
}

void CWelcomePageView::showError(const QString &error)
{
    auto *label = new Windows::CPlainLabel(error, this);
    label->setObjectName(QStringLiteral("error"));
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setMargin(3 * margin);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWidget(label);
    setFocusProxy(label);
}

void CWelcomePageView::nameAfter(const INerixWelcomeTab &tab)
{
    const auto setName = [this, &tab] { widget()->setAccessibleName(tab.tabTitle()); };
    connect(&tab, &INerixWelcomeTab::titleChanged, this, setName);
    setName();
}

} // namespace NerixWelcome
} // namespace Plugin
