// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeHost.h"
#include "internal/CUsageTrackingProvider.h"
#include "RecordingAnalytics.h"

#include <QStringList>
#include <QThread>

/// A provider in a tracking thread of its own, at a fake host and the recording analytics library.
///
/// Everything that a test does here is done when the call returns: requests are run in the tracking
/// thread and waited for, signals are emitted in the host's camera thread and their queued slots
/// waited for.
class TrackingFixture
{
public:
    TrackingFixture();
    ~TrackingFixture();

    void start();
    void stop();
    void optOut();

    /// Emits signals in the host's camera thread and waits until the provider has seen them.
    void emitFromHost(const std::function<void()> &emission);

    /// As `emitFromHost`, and returns the calls that it led to.
    QStringList callsFor(const std::function<void()> &emission);

    /// Starts tracking and forgets the calls of it.
    void startQuietly();

    /// Waits until the tracking thread has done what was queued so far.
    void settle();

    /// Runs \a work in the tracking thread and waits for it.
    void inTrackingThread(const std::function<void()> &work);

    /// Calls \a slot of the provider with \a device in the tracking thread. For what no signal can
    /// bring: a grab of a device that is no camera.
    void callSlot(const char *slot, const Core::CameraPoolComponents::DeviceBaseInfoPtr &device);

    void connectCamera(const QSharedPointer<FakeCamera> &camera);
    void openCamera(const QSharedPointer<FakeCamera> &camera);

    FakeHost host;
    RecordingAnalytics &analytics = RecordingAnalytics::instance();
    QThread trackingThread;
    Plugin::UsageTracking::Internal::CUsageTrackingProvider *provider = nullptr;
    bool servicesFound = false;
};

/// The folder that the provider passes to the analytics library in tests: that of the test program
/// below its folder for data, put together by hand.
QString expectedDirectory();
