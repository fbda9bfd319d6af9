// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include <ParameterCollection/IFloatParameter.h>

namespace ParameterCollection {

IFloatParameter::IFloatParameter(QObject *parent)
    : IParameter(parent)
{}

IFloatParameter::~IFloatParameter() = default;

} // namespace ParameterCollection
