// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CNodeAccess.h"

namespace ParameterCollectionPool {

/// The number of bytes of a feature that is a register, or a text in one, by the camera's
/// description. A camera that names gigabytes must not get them: they would be asked for in memory,
/// and read for hours.
/// @throws ParameterCollection::CParameterException if it is more than a register can reasonably
/// have.
int registerLength(const CNodeAccess &access);

} // namespace ParameterCollectionPool
