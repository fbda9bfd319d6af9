// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CWelcomeWindow.h"

#include "plugins/nerixwelcome/CNerixWelcomeController.h"
#include "plugins/nerixwelcome/CWelcomePageView.h"
#include "plugins/nerixwelcome/QuickRenderer.h"
#include "windows/CPlainLabel.h"
#include "windows/OnLanguageChange.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QAccessible>
#include <QScreen>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStyle>
#include <QTabBar>
#include <QVBoxLayout>

namespace Plugin {
namespace NerixWelcome {

namespace {

// The height of the line for notices, which is always there so that the page keeps its place.
constexpr int noticeHeight = 29;

constexpr int aboveTabs = 8;

// What the frame of a window takes of a small screen.
constexpr QSize windowFrame(8, 36);

} // namespace

CWelcomeWindow::CWelcomeWindow(CNerixWelcomeController &controller, QWidget *parent)
    : QDialog(parent)
    , m_controller(controller)
    , m_pages(controller)
    , m_tabBar(new QTabBar(this))
    , m_views(new QStackedWidget(this))
    , m_notice(new Windows::CPlainLabel(this))
{
    setObjectName(QStringLiteral("welcomeWindow"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setSizeGripEnabled(true);
    layOut();
    Windows::onLanguageChange(this, [this] { setTexts(); });
    connectController();
    updateTabs();
    followVisibility();
}

CWelcomeWindow::~CWelcomeWindow()
{
    for (const Tab &tab : m_tabs) {
        delete tab.view;
    }
}

void CWelcomeWindow::done(int result)
{
    if (m_controller.close()) {
        QDialog::done(result);
    } else {
        sayWhyItStays();
    }
}

void CWelcomeWindow::setTexts()
{
    setWindowTitle(tr("Welcome to the Nerix Viewer"));
    m_tabBar->setAccessibleName(tr("Pages"));
    if (m_isSayingWhyItStays) {
        sayWhyItStays();
    }
}

void CWelcomeWindow::connectController()
{
    using Controller = CNerixWelcomeController;
    connect(&m_controller, &Controller::tabsChanged, this, &CWelcomeWindow::updateTabs);
    connect(&m_controller, &Controller::currentIndexChanged, this,
            &CWelcomeWindow::showCurrentPage);
    connect(&m_controller, &Controller::visibleChanged, this, &CWelcomeWindow::followVisibility);
    connect(&m_controller, &Controller::showRequested, this, &CWelcomeWindow::comeToTheFront);
    connect(&m_controller, &Controller::applyFromTabsIsNeededChanged, this,
            &CWelcomeWindow::followQuestion);
    connect(m_tabBar, &QTabBar::currentChanged, &m_controller, &Controller::setCurrentIndex);
}

void CWelcomeWindow::layOut()
{
    m_tabBar->setObjectName(QStringLiteral("tabs"));
    m_tabBar->setDocumentMode(true);
    m_tabBar->setDrawBase(false);
    m_tabBar->setExpanding(false);
    m_notice->setObjectName(QStringLiteral("notice"));
    m_notice->setMinimumHeight(noticeHeight);
    m_notice->setMargin(4);
    m_notice->setWordWrap(true);
    m_notice->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, aboveTabs, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tabBar);
    layout->addWidget(m_views, 1);
    layout->addWidget(m_notice);
}

// A tab that is gone is known by its address only.
void CWelcomeWindow::updateTabs()
{
    const QSignalBlocker blocker(m_tabBar);
    const auto tabs = m_controller.tabs();
    for (int index = int(m_tabs.size()) - 1; index >= 0; --index) {
        if (!tabs.contains(m_tabs[std::size_t(index)].tab)) {
            removeTab(index);
        }
    }
    for (int index = int(m_tabs.size()); index < tabs.size(); ++index) {
        insertTab(index, tabs.at(index));
    }
    m_tabBar->setCurrentIndex(m_controller.currentIndex());
}

void CWelcomeWindow::removeTab(int index)
{
    m_tabBar->removeTab(index);
    delete m_tabs[std::size_t(index)].view;
    m_tabs.erase(m_tabs.begin() + index);
}

void CWelcomeWindow::insertTab(int index, INerixWelcomeTab *tab)
{
    m_tabs.insert(m_tabs.begin() + index, {tab, nullptr});
    m_tabBar->insertTab(index, tab->tabTitle());
    connect(tab, &INerixWelcomeTab::titleChanged, this, [this, tab] {
        m_tabBar->setTabText(m_controller.tabs().indexOf(tab), tab->tabTitle());
    });
}

void CWelcomeWindow::showCurrentPage()
{
    const int index = m_controller.currentIndex();
    {
        const QSignalBlocker blocker(m_tabBar);
        m_tabBar->setCurrentIndex(index);
    }
    if (index < 0 || !m_controller.isVisible()) {
        return;
    }
    Tab &current = m_tabs[std::size_t(index)];
    if (!current.view) {
        chooseQuickRenderer();
        current.view = new CWelcomePageView(m_pages, *current.tab, m_views);
        m_views->addWidget(current.view);
    }
    m_views->setCurrentWidget(current.view);
    // Not while a user walks along the row of tabs.
    if (!m_tabBar->hasFocus()) {
        current.view->setFocus(Qt::OtherFocusReason);
    }
}

void CWelcomeWindow::followVisibility()
{
    if (m_controller.isVisible()) {
        bringUp();
    } else {
        dropProblem();
        hide();
    }
}

void CWelcomeWindow::followQuestion()
{
    if (!m_controller.applyFromTabsIsNeeded()) {
        m_notice->clear();
        m_isSayingWhyItStays = false;
    } else if (isVisible() && !isModal()) {
        // A window that is shown already cannot begin to block the others.
        hide();
        bringUp();
    }
}

void CWelcomeWindow::bringUp()
{
    const bool isNew = m_views->count() == 0;
    showCurrentPage();
    if (isNew) {
        fitToScreen();
    }
    moveOverTheParent();
    setWindowModality(m_controller.applyFromTabsIsNeeded() ? Qt::ApplicationModal : Qt::NonModal);
    show();
}

void CWelcomeWindow::comeToTheFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

void CWelcomeWindow::fitToScreen()
{
    const QSize wanted = sizeHint();
    const QSize room = screen()->availableSize() - windowFrame;
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    // A page that scrolls down should not have to scroll to the side for its scroll bar.
    const QSize beside(wanted.height() > room.height() ? scrollBar : 0, 0);
    resize((wanted + beside).boundedTo(room));
}

// Nearer to its middle than Qt comes, which guesses the frames; those of two windows are alike.
void CWelcomeWindow::moveOverTheParent()
{
    if (!parentWidget() || !parentWidget()->isVisible()) {
        return;
    }
    const QRect over = parentWidget()->frameGeometry();
    const QSize frame = parentWidget()->frameSize() - parentWidget()->size();
    const QRect room = parentWidget()->screen()->availableGeometry();
    QRect place(QPoint(), size() + frame);
    place.moveCenter(over.center());
    place.moveBottomRight({qMin(place.right(), room.right()), qMin(place.bottom(), room.bottom())});
    move(qMax(place.left(), room.left()), qMax(place.top(), room.top()));
}

void CWelcomeWindow::sayWhyItStays()
{
    for (const Tab &tab : m_tabs) {
        if (tab.tab->isApplyNeeded()) {
            say(tr("Please answer the question on \"%1\" first, then choose Apply. "
                   "This window can be closed then.")
                    .arg(tab.tab->tabTitle()));
            m_isSayingWhyItStays = true;
        }
    }
}

void CWelcomeWindow::showProblem(const QString &message)
{
    if (isActiveWindow()) {
        say(message);
        m_isSayingWhyItStays = false;
    }
}

void CWelcomeWindow::dropProblem()
{
    if (!m_isSayingWhyItStays) {
        m_notice->clear();
    }
}

void CWelcomeWindow::say(const QString &text)
{
    m_notice->setText(text);
    QAccessibleEvent alert(m_notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace NerixWelcome
} // namespace Plugin
