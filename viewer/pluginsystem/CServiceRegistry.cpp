// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/CServiceRegistry.h>

#include <QWriteLocker>

namespace PluginSystem {

CServiceRegistry::CServiceRegistry(QObject *parent)
    : Core::Plugin::IPluginInitializer(parent)
{}

CServiceRegistry::~CServiceRegistry()
{
    clear();
}

QReadWriteLock *CServiceRegistry::serviceLock() const
{
    return &m_lock;
}

const QList<QSharedPointer<QObject>> &CServiceRegistry::services() const
{
    return m_services;
}

void CServiceRegistry::addService(const QSharedPointer<QObject> &service)
{
    const QWriteLocker lock(&m_lock);
    if (service && !m_services.contains(service)) {
        m_services.append(service);
    }
}

void CServiceRegistry::removeService(const QSharedPointer<QObject> &service)
{
    // Outlives the lock, since the reference may be to the list's own element, the last one.
    const QSharedPointer<QObject> kept = service;
    const QWriteLocker lock(&m_lock);
    m_services.removeOne(kept);
}

void CServiceRegistry::clear()
{
    QList<QSharedPointer<QObject>> removed;
    {
        const QWriteLocker lock(&m_lock);
        removed.swap(m_services);
    }
    while (!removed.isEmpty()) {
        removed.removeLast();
    }
}

} // namespace PluginSystem
