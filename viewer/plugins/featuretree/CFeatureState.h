// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/AccessMode.h>

#include <optional>

#include <QMetaType>
#include <QString>
#include <QStringList>

namespace FeatureTree {

/// The limits of a whole number, both included, and the step between two allowed values.
struct CIntegerLimits
{
    qint64 minimum = 0;
    qint64 maximum = 0;
    qint64 increment = 1;

    bool operator==(const CIntegerLimits &other) const
    {
        return minimum == other.minimum && maximum == other.maximum && increment == other.increment;
    }
};

/// The limits of a number with a fraction, both included.
struct CFloatLimits
{
    double minimum = 0.0;
    double maximum = 0.0;

    bool operator==(const CFloatLimits &other) const
    {
        return minimum == other.minimum && maximum == other.maximum;
    }
};

/// What a feature was found to be when it was last asked. A value.
struct CFeatureState
{
    bool isKnown = false; ///< false until it is asked for the first time
    ParameterCollection::AccessMode mode = ParameterCollection::AccessNotAvailable;
    bool isUserSettable = false; ///< also while it is locked
    QString text;                ///< the value in GenICam's notation; null if it has none now
    QString failure;             ///< why the value could not be read; empty if it could
    std::optional<CIntegerLimits> integerLimits;
    std::optional<CFloatLimits> floatLimits;
    QStringList entries; ///< of an enumeration: those that can be chosen now

    // A text that is null and one that is empty are not the same here.
    bool operator==(const CFeatureState &other) const
    {
        return isKnown == other.isKnown && mode == other.mode
               && isUserSettable == other.isUserSettable && text == other.text
               && text.isNull() == other.text.isNull() && failure == other.failure
               && integerLimits == other.integerLimits && floatLimits == other.floatLimits
               && entries == other.entries;
    }

    bool isOffered() const
    {
        return mode > ParameterCollection::AccessNotAvailable;
    }
    bool canBeSet() const
    {
        return mode == ParameterCollection::AccessReadWrite
               || mode == ParameterCollection::AccessWriteOnly;
    }
    /// It can never be set, whatever the device does.
    bool isReadOnly() const
    {
        return isKnown && !isUserSettable && mode == ParameterCollection::AccessReadOnly;
    }
    bool isLocked() const
    {
        return isKnown && isUserSettable && isOffered() && !canBeSet();
    }
};

} // namespace FeatureTree

Q_DECLARE_METATYPE(FeatureTree::CFeatureState)
