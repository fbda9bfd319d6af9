// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CCameraJournal.h"

#include "scripting/CameraDescription.h"

#include <CameraPool/ICameraStatusService.h>

#include <utility>

namespace Scripting {

CCameraJournal::CCameraJournal(QObject *parent)
    : QObject(parent)
{}

void CCameraJournal::listenTo(const CameraPool::ICameraStatusService &status)
{
    using CameraPool::ICameraStatusService;
    using Core::CameraPoolComponents::DeviceBaseInfoPtr;
    const auto noteAs = [this](const char *event) {
        const QString text = QString::fromLatin1(event);
        return [this, text](const DeviceBaseInfoPtr &device) { note(text, device); };
    };
    connect(&status, &ICameraStatusService::deviceConnected, this, noteAs("connected"));
    connect(&status, &ICameraStatusService::deviceDisconnected, this, noteAs("disconnected"));
    connect(&status, &ICameraStatusService::deviceOpened, this, noteAs("opened"));
    connect(&status, &ICameraStatusService::deviceClosing, this, noteAs("closing"));
}

QVariantList CCameraJournal::take()
{
    return std::exchange(m_entries, {});
}

void CCameraJournal::note(const QString &event,
                          const Core::CameraPoolComponents::DeviceBaseInfoPtr &device)
{
    if (const auto camera =
            qSharedPointerDynamicCast<Core::CameraPoolComponents::ICameraInfo>(device)) {
        QVariantMap entry = describeCamera(camera);
        entry.insert(QStringLiteral("event"), event);
        m_entries.append(entry);
    }
}

} // namespace Scripting
