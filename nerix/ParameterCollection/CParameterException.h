// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <stdexcept>

#include <QString>

namespace ParameterCollection {

/// A parameter could not be read or set. The message is one line that names the parameter and the
/// reason, for example the limits that a value is outside of.
class NERIXCORE_EXPORT CParameterException : public std::runtime_error
{
public:
    explicit CParameterException(const QString &message);
    ~CParameterException() override;

    QString message() const;
};

} // namespace ParameterCollection
