// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Simulator {

// Two pieces of a GenICam description.
struct GeneratedFeatures
{
    std::string categories; // <pFeature> entries for the category that holds the generated ones
    std::string nodes;      // the nodes themselves
};

// Makes that many vendor features (0: none, both pieces empty) in categories of 20: in turn an
// integer, a float, a boolean, an enumeration and a text, named QmzBank001Offset, QmzBank001Scale,
// and so on. Each has a slot of registers of its own; all are zero at first and can be written.
GeneratedFeatures generateFeatures(int count);

} // namespace Simulator
