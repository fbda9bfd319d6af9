// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <pluginsystem/CPluginInitializer.h>
#include <pluginsystem/CServiceRegistry.h>

namespace PluginSystem {

CPluginInitializer::CPluginInitializer(CServiceRegistry &registry)
    : m_registry(registry)
{}

QReadWriteLock *CPluginInitializer::serviceLock() const
{
    return m_registry.serviceLock();
}

const QList<QSharedPointer<QObject>> &CPluginInitializer::services() const
{
    return m_registry.services();
}

void CPluginInitializer::addService(const QSharedPointer<QObject> &service)
{
    m_registry.addService(service);
    if (service && !m_added.contains(service)) {
        m_added.append(service);
    }
}

void CPluginInitializer::removeService(const QSharedPointer<QObject> &service)
{
    m_added.removeOne(service);
    m_registry.removeService(service);
}

int CPluginInitializer::dropServices()
{
    int dropped = 0;
    while (!m_added.isEmpty()) {
        const QWeakPointer<QObject> last = m_added.takeLast();
        if (const QSharedPointer<QObject> service = last.toStrongRef()) {
            m_registry.removeService(service);
            ++dropped;
        }
    }
    return dropped;
}

} // namespace PluginSystem
