// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace ParameterCollection {

/// What a parameter is, in GenApi's numbering of interface types (GenICam GenApi,
/// `EInterfaceType`).
enum InterfaceType : int {
    InterfaceValue = 0,
    InterfaceBase = 1,
    InterfaceInteger = 2,
    InterfaceBoolean = 3,
    InterfaceCommand = 4,
    InterfaceFloat = 5,
    InterfaceString = 6,
    InterfaceRegister = 7,
    /// A folder of the feature tree. It has no value.
    InterfaceCategory = 8,
    InterfaceEnumeration = 9,
    InterfaceEnumEntry = 10,
    InterfacePort = 11
};

} // namespace ParameterCollection
