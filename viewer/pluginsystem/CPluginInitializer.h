// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPluginInitializer.h>

#include <QVector>
#include <QWeakPointer>

namespace PluginSystem {

class CServiceRegistry;

/// The registry as one plug-in sees it. All plug-ins share the same services; each has its own
/// `initializationDone`, so that an exception in the slot of one is that one's error and keeps the
/// signal from nobody else.
///
/// Looking up is possible in any thread, everything else in the GUI thread.
class CPluginInitializer : public Core::Plugin::IPluginInitializer
{
    Q_OBJECT

public:
    /// \a registry must outlive this object.
    explicit CPluginInitializer(CServiceRegistry &registry);

    QReadWriteLock *serviceLock() const override;
    const QList<QSharedPointer<QObject>> &services() const override;
    void addService(const QSharedPointer<QObject> &service) override;
    void removeService(const QSharedPointer<QObject> &service) override;

    /// Removes what the plug-in added and did not remove, the last one first.
    /// @return how many that were.
    int dropServices();

private:
    CServiceRegistry &m_registry;
    QVector<QWeakPointer<QObject>> m_added;
};

} // namespace PluginSystem
