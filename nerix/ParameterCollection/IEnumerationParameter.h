// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IParameter.h>

#include <QStringList>
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

    /// The names of the entries that can be chosen at this moment, in the description's order. The
    /// base knows none.
    /// @throws CParameterException if they cannot be read.
    virtual QStringList entries() const;

protected:
    explicit IEnumerationParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
