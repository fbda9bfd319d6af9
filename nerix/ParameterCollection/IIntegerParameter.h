// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IParameter.h>

#include <QtGlobal>

namespace ParameterCollection {

/// A whole number.
class NERIXCORE_EXPORT IIntegerParameter : public IParameter
{
    Q_OBJECT

public:
    ~IIntegerParameter() override;

    /// The current value.
    /// @throws CParameterException if it cannot be read.
    virtual qint64 value() const = 0;

    /// The limits at this moment, both included, and the step from one allowed value to the next,
    /// counted from the minimum. The base knows no limits and a step of 1.
    /// @throws CParameterException if they cannot be read.
    virtual qint64 minimum() const;
    virtual qint64 maximum() const;
    virtual qint64 increment() const;

protected:
    explicit IIntegerParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
