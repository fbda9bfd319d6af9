// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CConsentWatch.h"

#include "plugins/nerixwelcome/CNerixWelcomeController.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <QMetaProperty>
#include <QQmlContext>
#include <QQmlEngine>

namespace Plugin {
namespace UsageDataLog {

using NerixWelcome::CNerixWelcomeController;
using NerixWelcome::INerixWelcomeTab;

namespace {

constexpr char answered[] = "dataPrivacyOptInSelected";
constexpr char answerIsYes[] = "dataPrivacyOptInEnabled";
constexpr char applyEnabled[] = "dataPrivacyApplyEnabled";

// The object behind the consent page; null if \a tab is another one.
QObject *pageOf(INerixWelcomeTab *tab, QQmlEngine *engine)
{
    QQmlContext context(engine);
    if (!tab->setupQmlContext(&context)) {
        return nullptr;
    }
    return context.contextProperty(QStringLiteral("_dataPrivacyController")).value<QObject *>();
}

} // namespace

CConsentWatch::CConsentWatch(const QSharedPointer<CNerixWelcomeController> &welcome,
                             QObject *parent)
    : QObject(parent)
    , m_welcome(welcome)
    , m_engine(std::make_unique<QQmlEngine>())
{
    if (m_welcome) {
        connect(m_welcome.data(), &CNerixWelcomeController::tabsChanged, this,
                &CConsentWatch::findPage);
        findPage();
    }
}

CConsentWatch::~CConsentWatch() = default;

CConsentWatch::Consent CConsentWatch::consent() const
{
    return m_consent;
}

bool CConsentWatch::showPage()
{
    return m_tab && m_welcome->showTab(m_tab);
}

void CConsentWatch::findPage()
{
    const auto tabs = m_welcome->tabs();
    if (m_tab && tabs.contains(m_tab)) {
        return;
    }
    for (INerixWelcomeTab *tab : tabs) {
        if (QObject *page = pageOf(tab, m_engine.get())) {
            follow(tab, page);
            return;
        }
    }
    m_page.clear();
    set(Consent::NoPage);
}

void CConsentWatch::follow(INerixWelcomeTab *tab, QObject *page)
{
    m_tab = tab;
    m_page = page;
    const QMetaMethod slot = metaObject()->method(
        metaObject()->indexOfSlot(QMetaObject::normalizedSignature("update()")));
    for (const char *property : {answered, answerIsYes, applyEnabled}) {
        const int index = page->metaObject()->indexOfProperty(property);
        connect(page, page->metaObject()->property(index).notifySignal(), this, slot);
    }
    update();
}

// While an answer waits to be applied the page tells that one.
void CConsentWatch::update()
{
    if (!m_page) {
        return;
    }
    if (!m_page->property(answered).toBool()) {
        set(Consent::Unanswered);
    } else if (!m_page->property(applyEnabled).toBool()) {
        set(m_page->property(answerIsYes).toBool() ? Consent::Yes : Consent::No);
    }
}

void CConsentWatch::set(Consent consent)
{
    if (consent != m_consent) {
        m_consent = consent;
        Q_EMIT changed();
    }
}

} // namespace UsageDataLog
} // namespace Plugin
