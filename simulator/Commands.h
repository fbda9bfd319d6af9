// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ICamera.h"

#include <string>

namespace Simulator {

// The answer to a line of standard input.
struct Answer
{
    std::string text; // one line, without its end; begins with "error: " when nothing was done
    bool quit = false;
};

// Does what the line says. Blanks around and between its words do not matter.
Answer execute(const std::string &line, ICamera &camera);

} // namespace Simulator
