// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "store/RecordReader.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace rui::tool {

enum class Format { Table, Json, Csv, Raw };
enum class Command { List, Statistics, Send, Export, Purge, Help, Version };

struct Options
{
    Command command = Command::List;
    Format format = Format::Table;
    bool follow = false;
    RecordFilter filter;
    // Where "send" delivers to.
    std::string server;
    // The file that "export" writes.
    std::string output;
    std::string directory;
};

// A command line that makes no sense; what() is one line that says what to change.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads the command line without the program's name. Throws UsageError.
Options parseOptions(const std::vector<std::string> &arguments);

// The text of --help.
const char *helpText();

} // namespace rui::tool
