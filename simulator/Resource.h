// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Simulator {

// A file that is compiled in, by its path within `simulator/`. Ends the program when there is none
// of that name: such a call is a mistake in the source.
std::string resource(const std::string &path);

// Replaces every occurrence of a mark in a text.
std::string filledIn(std::string text, const std::string &mark, const std::string &value);

} // namespace Simulator
