// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IParameter.h>

namespace ParameterCollection {

/// A switch.
class NERIXCORE_EXPORT IBooleanParameter : public IParameter
{
    Q_OBJECT

public:
    ~IBooleanParameter() override;

    /// True for on.
    /// @throws CParameterException if it cannot be read.
    virtual bool value() const = 0;

protected:
    explicit IBooleanParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
