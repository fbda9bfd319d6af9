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

protected:
    explicit IIntegerParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
