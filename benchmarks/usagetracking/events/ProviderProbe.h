// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeHost.h"
#include "internal/CUsageTrackingProvider.h"

#include <QList>
#include <QSharedPointer>

/// A provider whose slots can be called. Lives in the thread that makes it, unless moved.
class ProviderProbe : public Plugin::UsageTracking::Internal::CUsageTrackingProvider
{
public:
    explicit ProviderProbe(FakeHost &host)
    {
        acquireServices(&host);
    }

    using CUsageTrackingProvider::onCameraConnected;
    using CUsageTrackingProvider::onCameraImageGrabFailed;
    using CUsageTrackingProvider::onDeviceOpened;
};

/// Cameras as a pool names them: what tells them apart stands at the end.
inline QList<QSharedPointer<FakeCamera>> makeCameras(FakeHost &host, int count)
{
    QList<QSharedPointer<FakeCamera>> cameras;
    for (int i = 0; i < count; ++i) {
        const QByteArray identity = "Ostrand-XQZ-2000-" + QByteArray::number(404142 + i);
        cameras.append(host.makeCamera(identity.constData(), "XQZ-2000"));
    }
    return cameras;
}
