// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IParameter.h>

namespace ParameterCollection {

/// A number with a fraction.
class NERIXCORE_EXPORT IFloatParameter : public IParameter
{
    Q_OBJECT

public:
    ~IFloatParameter() override;

    /// The current value.
    /// @throws CParameterException if it cannot be read.
    virtual double value() const = 0;

    /// The limits at this moment, both included.
    /// @throws CParameterException if they cannot be read.
    virtual double minimum() const = 0;
    virtual double maximum() const = 0;

protected:
    explicit IFloatParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
