// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <QList>
#include <QObject>
#include <QReadWriteLock>
#include <QSharedPointer>

namespace Core {
namespace Plugin {

/// What the viewer hands to each plug-in: the registry of services, and the news that every plug-in
/// is initialised.
///
/// Services are shared pointers to `QObject`, found by the interface that they implement; see
/// `findService` and `findServices` in `Core/Plugin/ServiceLookup.h`. The registry may be read in
/// any thread while the read lock is held. Services are added in `preInitialize` or `initialize`
/// and removed in `uninitialize`, in the GUI thread.
class NERIXCORE_EXPORT IPluginInitializer : public QObject
{
    Q_OBJECT

public:
    ~IPluginInitializer() override;

    /// Guards `services`. Never null; owned by the registry. Hold it for reading, and only for the
    /// time of the walk: a thread that holds it must not add or remove a service.
    virtual QReadWriteLock *serviceLock() const = 0;

    /// The services in the order in which they were added. Only while `serviceLock` is held.
    virtual const QList<QSharedPointer<QObject>> &services() const = 0;

    /// Adds \a service at the end. Takes the write lock for that moment. A null pointer or a
    /// service that is there already is ignored.
    virtual void addService(const QSharedPointer<QObject> &service) = 0;

    /// Removes \a service; whoever still holds a pointer keeps the object alive. Takes the write
    /// lock for that moment. A service that is not there is ignored.
    virtual void removeService(const QSharedPointer<QObject> &service) = 0;

Q_SIGNALS:
    /// Emitted once, in the GUI thread from the event loop, when every plug-in is initialised.
    void initializationDone();

protected:
    explicit IPluginInitializer(QObject *parent = nullptr);
};

} // namespace Plugin
} // namespace Core
