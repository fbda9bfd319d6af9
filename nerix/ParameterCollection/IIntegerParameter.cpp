// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IIntegerParameter.h>

namespace ParameterCollection {

IIntegerParameter::IIntegerParameter(QObject *parent)
    : IParameter(parent)
{}

IIntegerParameter::~IIntegerParameter() = default;

} // namespace ParameterCollection
