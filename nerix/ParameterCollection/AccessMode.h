// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace ParameterCollection {

/// What can be done with a parameter at this moment, in GenApi's numbering (`EAccessMode`).
enum AccessMode : int {
    AccessNotImplemented = 0,
    AccessNotAvailable = 1,
    AccessWriteOnly = 2,
    AccessReadOnly = 3,
    AccessReadWrite = 4
};

} // namespace ParameterCollection
