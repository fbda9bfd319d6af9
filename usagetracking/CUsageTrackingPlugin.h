// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/ALocalizedPlugin.h>
#include <Plugin/NerixWelcome/INerixWelcomeService.h>

#include <QPointer>
#include <QSharedPointer>
#include <QThread>

class QAction;

namespace Plugin::UsageTracking::Internal {
class CDataPrivacyTab;
class CDataPrivacyTabController;
class CUsageTrackingProvider;
} // namespace Plugin::UsageTracking::Internal

namespace Plugin::UsageTracking {

/// The plug-in as the viewer sees it: it keeps the user's answer, offers the "Data Privacy" page
/// and its entry in the Help menu, and tells the tracking provider when to start and when to stop.
///
/// Lives in the GUI thread. The provider lives in a thread of its own from `initialize` on and is
/// only reached by timers whose context object it is.
class CUsageTrackingPlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT

public:
    CUsageTrackingPlugin();
    ~CUsageTrackingPlugin() override;

    /// Always true.
    bool preInitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

    /// Sets everything up, whatever is missing. @return whether the provider found the four
    /// services that it requires.
    bool initialize() override;

    /// Stores the answer and ends the tracking thread, without a time limit. Always true.
    bool uninitialize(const QPointer<Core::Plugin::IPluginInitializer> &initializer) override;

private Q_SLOTS:
    void onInitializationDone();
    void onDataPrivacyApplyClicked();
    void onShowDataPrivacyTriggered();

private:
    void startTrackingThread();
    void addWelcomeTab();
    void addHelpMenuEntry();

    /// Null if the tab is gone.
    Internal::CDataPrivacyTabController *controller() const;
    void loadConsent();
    void saveConsent() const;
    void requestTracking(bool active);

protected:
    QPointer<Core::Plugin::IPluginInitializer> m_initializer;
    QPointer<Internal::CDataPrivacyTab> m_dataPrivacyTab;
    QSharedPointer<NerixWelcome::INerixWelcomeService> m_welcomeService;
    QAction *m_dataPrivacyAction = nullptr;
    /// Null once the tracking thread has ended.
    Internal::CUsageTrackingProvider *m_provider = nullptr;
    QThread m_trackingThread;
    /// What the provider was last asked for. Whether it tracks is the provider's to know.
    bool m_trackingActive = false;
};

} // namespace Plugin::UsageTracking
