// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CNerixWelcomeController.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <algorithm>

#include <QSettings>

namespace Plugin {
namespace NerixWelcome {

namespace {

const QLatin1String showAtStartupKey("NerixWelcome/ShowAtStartup");

} // namespace

CNerixWelcomeController::CNerixWelcomeController(QObject *parent)
    : QObject(parent)
{}

CNerixWelcomeController::~CNerixWelcomeController() = default;

const QList<INerixWelcomeTab *> &CNerixWelcomeController::tabs() const
{
    return m_tabs;
}

QList<QObject *> CNerixWelcomeController::tabObjects() const
{
    return {m_tabs.begin(), m_tabs.end()};
}

void CNerixWelcomeController::addTab(INerixWelcomeTab *tab)
{
    if (!tab || m_tabs.contains(tab)) {
        return;
    }
    m_tabs.append(tab);
    connect(tab, &INerixWelcomeTab::applyIsNeededChanged, this,
            &CNerixWelcomeController::updateApplyFromTabsIsNeeded);
    connect(tab, &QObject::destroyed, this, &CNerixWelcomeController::removeTab);
    Q_EMIT tabsChanged();
    if (m_currentIndex < 0) {
        setCurrentIndex(0);
    }
    updateApplyFromTabsIsNeeded();
}

int CNerixWelcomeController::currentIndex() const
{
    return m_currentIndex;
}

void CNerixWelcomeController::setCurrentIndex(int index)
{
    if (index >= 0 && index < m_tabs.size() && index != m_currentIndex) {
        m_currentIndex = index;
        Q_EMIT currentIndexChanged();
    }
}

INerixWelcomeTab *CNerixWelcomeController::currentTab() const
{
    return m_tabs.value(m_currentIndex, nullptr);
}

bool CNerixWelcomeController::isVisible() const
{
    return m_visible;
}

bool CNerixWelcomeController::applyFromTabsIsNeeded() const
{
    return m_applyFromTabsIsNeeded;
}

bool CNerixWelcomeController::showAtStartup() const
{
    return QSettings().value(showAtStartupKey, true).toBool();
}

void CNerixWelcomeController::setShowAtStartup(bool show)
{
    if (show != showAtStartup()) {
        QSettings().setValue(showAtStartupKey, show);
        Q_EMIT showAtStartupChanged();
    }
}

void CNerixWelcomeController::start()
{
    if (m_applyFromTabsIsNeeded) {
        setCurrentIndex(firstTabWithQuestion());
    }
    setVisible(m_applyFromTabsIsNeeded || (showAtStartup() && !m_tabs.isEmpty()));
}

void CNerixWelcomeController::show()
{
    setVisible(true);
    Q_EMIT showRequested();
}

bool CNerixWelcomeController::showTab(const INerixWelcomeTab *tab)
{
    const int index = m_tabs.indexOf(const_cast<INerixWelcomeTab *>(tab));
    if (index < 0) {
        return false;
    }
    setCurrentIndex(index);
    show();
    return true;
}

bool CNerixWelcomeController::close()
{
    if (m_applyFromTabsIsNeeded) {
        return false;
    }
    setVisible(false);
    return true;
}

void CNerixWelcomeController::onCloseNerixWelcomeClicked()
{
    close();
}

// The tab is half destroyed: only its address is of use.
void CNerixWelcomeController::removeTab(const QObject *tab)
{
    const auto found = std::find(m_tabs.begin(), m_tabs.end(), tab);
    const int index = static_cast<int>(std::distance(m_tabs.begin(), found));
    m_tabs.erase(found);
    if (index < m_currentIndex || m_currentIndex == m_tabs.size()) {
        --m_currentIndex;
    }
    Q_EMIT tabsChanged();
    Q_EMIT currentIndexChanged();
    updateApplyFromTabsIsNeeded();
}

void CNerixWelcomeController::setVisible(bool visible)
{
    if (visible != m_visible) {
        m_visible = visible;
        Q_EMIT visibleChanged();
    }
}

void CNerixWelcomeController::updateApplyFromTabsIsNeeded()
{
    const bool needed = firstTabWithQuestion() >= 0;
    if (needed != m_applyFromTabsIsNeeded) {
        m_applyFromTabsIsNeeded = needed;
        Q_EMIT applyFromTabsIsNeededChanged();
    }
}

int CNerixWelcomeController::firstTabWithQuestion() const
{
    const auto found = std::find_if(m_tabs.begin(), m_tabs.end(), [](const INerixWelcomeTab *tab) {
        return tab->isApplyNeeded();
    });
    return found == m_tabs.end() ? -1 : static_cast<int>(std::distance(m_tabs.begin(), found));
}

} // namespace NerixWelcome
} // namespace Plugin
