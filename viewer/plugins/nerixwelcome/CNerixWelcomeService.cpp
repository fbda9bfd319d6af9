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

void CNerixWelcomeService::addTab(const QPointer<INerixWelcomeTab> &tab)
{
    m_controller->addTab(tab);
}

void CNerixWelcomeService::showTab(const QPointer<INerixWelcomeTab> &tab, QObject *requester)
{
    if (m_controller->showTab(tab)) {
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
