// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CIdentity.h"

#include <string>
#include <vector>

namespace Simulator {

// What the command line asks for.
struct Options
{
    std::string address = "127.0.0.1";
    CIdentity identity{"Ostrand", "XQZ-2000", {}, {}}; // a serial number is always filled in
    double loss = 0.0;
    int featureCount = 0; // always filled in: at least what the description has by itself
    bool help = false;    // print helpText() and end
    bool version = false; // print the version and end
};

// Reads the arguments (without the program's name). Throws std::invalid_argument with a line for
// the user that names what is wrong and the remedy.
Options parsedOptions(std::vector<std::string> arguments);

// What --help prints.
std::string helpText();

} // namespace Simulator
