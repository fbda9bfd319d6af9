// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The GenICam description of the camera. A value feature is everything in its tree that is no
// category: values and commands.
namespace Simulator {

// How many value features the description has by itself, and how many at most with generated ones.
int baseFeatureCount();
int maximumFeatureCount();

// The description with exactly that many value features, which is between the two above. Padded
// with blanks, so that a reader who fetches it in blocks never asks for bytes beyond its end.
std::string description(int featureCount);

} // namespace Simulator
