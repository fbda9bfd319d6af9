// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/Plugin/IPluginInitializer.h>

#include <QReadLocker>
#include <QSharedPointer>
#include <QVector>

namespace Core {
namespace Plugin {

/// Every service of \a initializer that implements \a Interface, in the registry's order. Holds the
/// read lock for the walk. Callable in any thread; \a initializer may be null (no services).
template <class Interface>
QVector<QSharedPointer<Interface>> findServices(const IPluginInitializer *initializer)
{
    QVector<QSharedPointer<Interface>> found;
    if (!initializer) {
        return found;
    }
    const QReadLocker lock(initializer->serviceLock());
    for (const QSharedPointer<QObject> &service : initializer->services()) {
        if (auto candidate = qSharedPointerDynamicCast<Interface>(service)) {
            found.append(candidate);
        }
    }
    return found;
}

/// The first service that implements \a Interface, or null.
template <class Interface>
QSharedPointer<Interface> findService(const IPluginInitializer *initializer)
{
    return findServices<Interface>(initializer).value(0);
}

} // namespace Plugin
} // namespace Core
