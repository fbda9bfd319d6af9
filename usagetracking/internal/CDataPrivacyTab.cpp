// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CDataPrivacyTab.h"

#include "CDataPrivacyTabController.h"
#include "CLanguageListener.h"

#include <QQmlContext>

namespace Plugin::UsageTracking::Internal {

CDataPrivacyTab::CDataPrivacyTab(QObject *parent)
    : INerixWelcomeTab(parent)
    , controller(new CDataPrivacyTabController(this))
{
    setId(Core::CId("UsageTracking.NerixWelcome.DataPrivacy"));
    title = tr("Data Privacy");
    qmlSource = QUrl(QStringLiteral("qrc:///usagetracking/qml/DataPrivacy.qml"));
    onDataPrivacyOptInSelectedChanged();
    connect(controller, &CDataPrivacyTabController::dataPrivacyOptInSelectedChanged, this,
            &CDataPrivacyTab::onDataPrivacyOptInSelectedChanged);
    new CLanguageListener([this] { retranslate(); }, this);
}

bool CDataPrivacyTab::setupQmlContext(QQmlContext *context)
{
    context->setContextProperty(QStringLiteral("_dataPrivacyController"), controller);
    return true;
}

CDataPrivacyTabController *CDataPrivacyTab::dataPrivacyController() const
{
    return controller;
}

void CDataPrivacyTab::onDataPrivacyOptInSelectedChanged()
{
    const bool answerIsOwed = !controller->dataPrivacyOptInSelected();
    if (answerIsOwed != applyIsNeeded) {
        applyIsNeeded = answerIsOwed;
        Q_EMIT applyIsNeededChanged();
    }
}

void CDataPrivacyTab::retranslate()
{
    const QString translated = tr("Data Privacy");
    if (translated != title) {
        title = translated;
        Q_EMIT titleChanged();
    }
}

} // namespace Plugin::UsageTracking::Internal
