// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IParameterCollection.h>

namespace ParameterCollection {

IParameterCollection::~IParameterCollection() = default;

} // namespace ParameterCollection
