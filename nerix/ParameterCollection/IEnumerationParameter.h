// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IParameter.h>

#include <QtGlobal>

namespace ParameterCollection {

/// A choice among named entries.
class NERIXCORE_EXPORT IEnumerationParameter : public IParameter
{
    Q_OBJECT

public:
    ~IEnumerationParameter() override;

    /// The number of the current entry, as the device description defines it.
    /// @throws CParameterException if it cannot be read.
    virtual qint64 intValue() const = 0;

protected:
    explicit IEnumerationParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
