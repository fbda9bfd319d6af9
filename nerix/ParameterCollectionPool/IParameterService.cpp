// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollectionPool/IParameterService.h>

namespace ParameterCollectionPool {

IParameterService::IParameterService(QObject *parent)
    : QObject(parent)
{}

IParameterService::~IParameterService() = default;

} // namespace ParameterCollectionPool
