// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeHost.h"
#include "RecordingAnalytics.h"
#include "UsageTrackingPluginProbe.h"

#include <memory>

#include <QSettings>
#include <QVariant>

/// The plug-in object at a fake host, driven as the viewer drives it.
class PluginFixture
{
public:
    PluginFixture();
    ~PluginFixture();

    /// Up to and without `initializationDone`. @return what `initialize` returned.
    bool initialize();

    /// `initializationDone`, and the provider's answer to it.
    void done();

    /// Everything up to the provider's answer to `initializationDone`.
    void start();

    void shutDown();

    /// Opens a session past the plug-in and forgets its calls: without a session an opt-out leaves
    /// no trace.
    void openSession();

    /// The page's buttons. `apply` includes the provider's answer.
    void click(bool yes);
    void apply();

    /// Waits until a request that was scheduled before has been carried out: a timer of the same
    /// length, started later in the same thread, fires later.
    void waitForRequests();

    bool trackingActive() const;
    Plugin::UsageTracking::Internal::CDataPrivacyTabController *controller() const;

    FakeHost host;
    RecordingAnalytics &analytics = RecordingAnalytics::instance();
    std::unique_ptr<Plugin::UsageTracking::CUsageTrackingPlugin> plugin;
    bool running = false;
};

/// The two keys as they are stored; an invalid variant for one that is not.
QVariant storedKey(const char *key);
void storeKeys(const QVariant &optInEnabled, const QVariant &optInSelected);
