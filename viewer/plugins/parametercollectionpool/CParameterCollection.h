// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureTree.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QHash>
#include <QMutex>

namespace ParameterCollectionPool {

/// The parameters of one opening of a device. The list of names is made at once; the objects are
/// made when they are asked for, once each.
class CParameterCollection : public ParameterCollection::IParameterCollection
{
public:
    /// @throws ParameterCollection::CParameterException if \a device is closed or lost.
    explicit CParameterCollection(const QSharedPointer<CameraPool::CDevice> &device);
    ~CParameterCollection() override;

    /// The device whose parameters these are.
    const QSharedPointer<CameraPool::CDevice> &device() const
    {
        return m_device;
    }

    QList<QSharedPointer<ParameterCollection::IParameter>> parameters() const override;
    QSharedPointer<ParameterCollection::IParameter>
    parameter(const QString &fullName) const override;
    QSharedPointer<ParameterCollection::IBooleanParameter>
    booleanParameter(const QString &fullName) const override;
    QSharedPointer<ParameterCollection::IIntegerParameter>
    integerParameter(const QString &fullName) const override;
    QSharedPointer<ParameterCollection::IEnumerationParameter>
    enumerationParameter(const QString &fullName) const override;
    QString featureStream(const QString &treeName) const override;

private:
    using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;

    ParameterPtr find(const QString &fullName) const;
    ParameterPtr create(int index) const;
    template <class Interface, class Null>
    QSharedPointer<Interface> typed(const QString &fullName) const;
    QString cameraStream() const;
    QString counterStream() const;

    const QSharedPointer<CameraPool::CDevice> m_device;
    const QVector<CFeature> m_features; // first in the order of all parameters; then the counters
    QVector<int> m_counters;            // the counters that the stream has
    QHash<QString, int> m_indices;      // by full name
    mutable QMutex m_mutex;
    mutable QVector<ParameterPtr> m_objects; // by index, null until asked for; guarded by m_mutex
};

} // namespace ParameterCollectionPool
