// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/CDevice.h"

#include <ParameterCollection/InterfaceType.h>

#include <QByteArray>
#include <QSharedPointer>
#include <QString>
#include <QVector>

namespace ParameterCollectionPool {

/// Where a feature is, and what the description says of it for good. A value.
struct CFeature
{
    QSharedPointer<CameraPool::CDevice> device;
    QByteArray node;  ///< the name of the GenICam node
    QString text;     ///< the same, shared by all who keep the name
    QString category; ///< the full name of the category that it is in; empty at the top
    ParameterCollection::InterfaceType type = ParameterCollection::InterfaceValue;
    bool hasReadableValue = false;
    bool hasWritableValue = false; ///< also while it is locked
    bool isAlwaysOffered = true;   ///< it depends on nothing whether the device has it
    bool isNeverLocked = true;

    QString name() const
    {
        return text;
    }
    QString fullName() const
    {
        return treePrefix() + name();
    }

    /// "@CameraDevice/"
    static QString treePrefix()
    {
        return QStringLiteral("@CameraDevice/");
    }
};

/// The features of \a device in tree order, categories included, each once: where the description
/// lists a feature in two categories, the first one counts. Reads no value.
/// @throws ParameterCollection::CParameterException if the device is closed or lost.
QVector<CFeature> walkFeatures(const QSharedPointer<CameraPool::CDevice> &device);

} // namespace ParameterCollectionPool
