// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/CNerixWelcomeService.h"

#include "plugins/nerixwelcome/CNerixWelcomeController.h"

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

#include <utility>

#include <QLoggingCategory>

namespace Plugin {
namespace NerixWelcome {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.welcome", QtInfoMsg)

QString nameOf(const QObject *requester)
{
    if (!requester) {
        return QStringLiteral("somebody");
    }
    const QString name = requester->objectName();
    return name.isEmpty() ? QString::fromLatin1(requester->metaObject()->className()) : name;
}

} // namespace

CNerixWelcomeService::CNerixWelcomeService(QSharedPointer<CNerixWelcomeController> controller,
                                           QObject *parent)
    : INerixWelcomeService(parent)
    , m_controller(std::move(controller))
{}

CNerixWelcomeService::~CNerixWelcomeService() = default;

void CNerixWelcomeService::withhold(const Core::CId &tabId)
{
    m_withheld = tabId;
}

bool CNerixWelcomeService::isWithheld(const INerixWelcomeTab *tab) const
{
    return tab && m_withheld.isValid() && tab->tabId() == m_withheld;
}

void CNerixWelcomeService::addTab(const QPointer<INerixWelcomeTab> &tab)
{
    if (isWithheld(tab)) {
        qCInfo(log).noquote() << "tab" << tab->tabId().toString()
                              << "is left out: usage tracking is switched off on this computer";
        return;
    }
    m_controller->addTab(tab);
}

void CNerixWelcomeService::showTab(const QPointer<INerixWelcomeTab> &tab, QObject *requester)
{
    if (isWithheld(tab)) {
        Q_EMIT withheldTabWanted();
    } else if (m_controller->showTab(tab)) {
        qCDebug(log).noquote() << "tab" << tab->tabId().toString() << "shown for"
                               << nameOf(requester);
    } else {
        qCWarning(log).noquote().nospace()
            << "the welcome screen cannot show a tab for " << nameOf(requester)
            << ": it was never added, or is gone";
    }
}

} // namespace NerixWelcome
} // namespace Plugin
