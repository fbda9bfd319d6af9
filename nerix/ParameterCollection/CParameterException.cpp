// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/CParameterException.h>

namespace ParameterCollection {

CParameterException::CParameterException(const QString &message)
    : std::runtime_error(message.toStdString())
{}

CParameterException::~CParameterException() = default;

QString CParameterException::message() const
{
    return QString::fromUtf8(what());
}

} // namespace ParameterCollection
