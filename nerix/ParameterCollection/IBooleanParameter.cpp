// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IBooleanParameter.h>

namespace ParameterCollection {

IBooleanParameter::IBooleanParameter(QObject *parent)
    : IParameter(parent)
{}

IBooleanParameter::~IBooleanParameter() = default;

} // namespace ParameterCollection
