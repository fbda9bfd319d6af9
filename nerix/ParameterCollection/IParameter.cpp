// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IParameter.h>

namespace ParameterCollection {

IParameter::IParameter(QObject *parent)
    : QObject(parent)
{}

IParameter::~IParameter() = default;

} // namespace ParameterCollection
