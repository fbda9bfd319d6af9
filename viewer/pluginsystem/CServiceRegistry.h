// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPluginInitializer.h>

#include <QList>
#include <QReadWriteLock>
#include <QSharedPointer>

namespace PluginSystem {

/// The services of the viewer, behind one lock.
///
/// Every operation may be called in any thread. The write lock is held only to add or remove:
/// nothing is emitted and no service is destroyed while it is held, so a service may use the
/// registry in its destructor.
class CServiceRegistry : public Core::Plugin::IPluginInitializer
{
    Q_OBJECT

public:
    explicit CServiceRegistry(QObject *parent = nullptr);
    ~CServiceRegistry() override;

    QReadWriteLock *serviceLock() const override;
    const QList<QSharedPointer<QObject>> &services() const override;
    void addService(const QSharedPointer<QObject> &service) override;
    void removeService(const QSharedPointer<QObject> &service) override;

    /// Removes every service, the one that was added last first.
    void clear();

private:
    mutable QReadWriteLock m_lock;
    QList<QSharedPointer<QObject>> m_services;
};

} // namespace PluginSystem
