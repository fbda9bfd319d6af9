// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IIntegerParameter.h>

#include <limits>

namespace ParameterCollection {

IIntegerParameter::IIntegerParameter(QObject *parent)
    : IParameter(parent)
{}

IIntegerParameter::~IIntegerParameter() = default;

qint64 IIntegerParameter::minimum() const
{
    return std::numeric_limits<qint64>::min();
}

qint64 IIntegerParameter::maximum() const
{
    return std::numeric_limits<qint64>::max();
}

qint64 IIntegerParameter::increment() const
{
    return 1;
}

} // namespace ParameterCollection
