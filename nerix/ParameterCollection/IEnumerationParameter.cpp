// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IEnumerationParameter.h>

namespace ParameterCollection {

IEnumerationParameter::IEnumerationParameter(QObject *parent)
    : IParameter(parent)
{}

IEnumerationParameter::~IEnumerationParameter() = default;

QStringList IEnumerationParameter::entries() const
{
    return {};
}

} // namespace ParameterCollection
