// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CDataPrivacyTabController.h"

#include <CHelpHelper.h>
#include <DocumentationHelper.h>

namespace Plugin::UsageTracking::Internal {

CDataPrivacyTabController::CDataPrivacyTabController(QObject *parent)
    : QObject(parent)
{}

bool CDataPrivacyTabController::dataPrivacyOptInSelected() const
{
    return optInSelected;
}

void CDataPrivacyTabController::setDataPrivacyOptInSelected(bool value)
{
    if (value == optInSelected) {
        return;
    }
    optInSelected = value;
    Q_EMIT dataPrivacyOptInSelectedChanged();
}

bool CDataPrivacyTabController::dataPrivacyOptInEnabled() const
{
    return applyEnabled ? pendingOptInEnabled : optInEnabled;
}

void CDataPrivacyTabController::setDataPrivacyOptInEnabled(bool value, bool byUser)
{
    // Before the first Apply a click on the answer already held counts too, so that the first
    // answer can be applied even if it equals the default.
    if (value == pendingOptInEnabled && optInSelected && byUser) {
        return;
    }
    pendingOptInEnabled = value;
    if (!byUser) {
        optInEnabled = value;
        Q_EMIT dataPrivacyOptInEnabledChanged();
        return;
    }
    if (!applyEnabled) {
        applyEnabled = true;
        Q_EMIT dataPrivacyApplyEnabledChanged();
    }
    Q_EMIT dataPrivacyOptInEnabledChanged();
}

bool CDataPrivacyTabController::dataPrivacyApplyEnabled() const
{
    return applyEnabled;
}

bool CDataPrivacyTabController::appliedOptInEnabled() const
{
    return optInEnabled;
}

void CDataPrivacyTabController::onDataPrivacyApplyClicked()
{
    optInEnabled = pendingOptInEnabled;
    applyEnabled = false;
    Q_EMIT dataPrivacyApplyEnabledChanged();
    setDataPrivacyOptInSelected(true);
    Q_EMIT dataPrivacyApplyClicked();
}

void CDataPrivacyTabController::onDataPrivacyLinkClicked(QString url)
{
    if (url.contains(QLatin1String("DataPrivacy.txt"))) {
        CHelpHelper::showHelp(CHelpHelper::HelpPrivacyStatement);
    } else {
        DocumentationHelper::OpenUrl(url, false);
    }
}

} // namespace Plugin::UsageTracking::Internal
