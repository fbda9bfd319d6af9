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
    QSharedPointer<QObject> removed; // outlives the lock, since it may be the last one
    const QWriteLocker lock(&m_lock);
    const int index = m_services.indexOf(service);
    if (index >= 0) {
        removed = m_services.takeAt(index);
    }
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
