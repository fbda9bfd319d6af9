// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Plugin/NerixWelcome/INerixWelcomeTab.h>

namespace Plugin::UsageTracking::Internal {

class CDataPrivacyTabController;

/// The "Data Privacy" tab of the welcome screen: caption, page, and whether the user still owes an
/// answer. GUI thread; a child of the plug-in.
class CDataPrivacyTab : public NerixWelcome::INerixWelcomeTab
{
    Q_OBJECT

public:
    explicit CDataPrivacyTab(QObject *parent);

    /// Publishes the controller as "_dataPrivacyController". Always true.
    bool setupQmlContext(QQmlContext *context) override;

    /// What the page binds to. Never null; lives as long as the tab.
    CDataPrivacyTabController *dataPrivacyController() const;

public Q_SLOTS:
    /// Holds the user on the welcome screen exactly while no answer was ever applied.
    void onDataPrivacyOptInSelectedChanged();

private:
    void retranslate();

    CDataPrivacyTabController *controller = nullptr;
};

} // namespace Plugin::UsageTracking::Internal
