// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Options.h"

#include "core/TimeText.h"

#include <functional>
#include <map>
#include <set>

namespace rui::tool {

namespace {

std::int64_t timeOption(const std::string &option, const std::string &value)
{
    const auto time = parseTime(value);
    if (!time) {
        throw UsageError(option + " '" + value
                         + "': write a UTC time as 2026-11-20 or 2026-11-20T18:30:00");
    }
    return *time;
}

using FlagAction = std::function<void(Options &)>;
using ValueAction = std::function<void(Options &, const std::string &value)>;

const std::map<std::string, FlagAction> &flags()
{
    static const std::map<std::string, FlagAction> table = {
        {"--help", [](Options &options) { options.command = Command::Help; }},
        {"--version", [](Options &options) { options.command = Command::Version; }},
        {"--stats", [](Options &options) { options.command = Command::Statistics; }},
        {"--follow", [](Options &options) { options.follow = true; }},
        {"--json", [](Options &options) { options.format = Format::Json; }},
        {"--csv", [](Options &options) { options.format = Format::Csv; }},
        {"--raw", [](Options &options) { options.format = Format::Raw; }},
    };
    return table;
}

const std::map<std::string, ValueAction> &valueOptions()
{
    static const std::map<std::string, ValueAction> table = {
        {"--to", [](Options &options, const std::string &v) { options.server = v; }},
        {"--otlp", [](Options &options, const std::string &v) { options.output = v; }},
        {"--category", [](Options &options, const std::string &v) { options.filter.category = v; }},
        {"--name", [](Options &options, const std::string &v) { options.filter.name = v; }},
        {"--since", [](Options &options,
                       const std::string &v) { options.filter.since = timeOption("--since", v); }},
        {"--until", [](Options &options,
                       const std::string &v) { options.filter.until = timeOption("--until", v); }},
    };
    return table;
}

void takeDirectory(Options &options, const std::string &argument)
{
    if (!options.directory.empty()) {
        throw UsageError("'" + argument + "': one directory is enough");
    }
    if (argument.empty()) {
        throw UsageError("the directory is empty; name the configuration directory");
    }
    options.directory = argument;
}

// A command stands in front of everything; "./send" is a directory.
bool takeCommand(Options &options, const std::string &argument, std::size_t at)
{
    static const std::map<std::string, Command> commands = {
        {"send", Command::Send}, {"export", Command::Export}, {"purge", Command::Purge}};
    const auto command = commands.find(argument);
    if (at != 0 || command == commands.end()) {
        return false;
    }
    options.command = command->second;
    return true;
}

void requireComplete(const Options &options)
{
    if (options.command == Command::Help || options.command == Command::Version) {
        return;
    }
    if (options.directory.empty()) {
        throw UsageError("name the configuration directory; see --help");
    }
    if ((options.command == Command::Send) != !options.server.empty()) {
        throw UsageError("'send' and '--to' with the address of the server belong together");
    }
    if ((options.command == Command::Export) != !options.output.empty()) {
        throw UsageError("'export' and '--otlp' with the name of a new file belong together");
    }
}

using Given = std::set<std::string>;

void requireOnce(Given &given, const std::string &option)
{
    if (!given.insert(option).second) {
        throw UsageError(option + " is given twice; once is enough");
    }
}

struct Fitting
{
    const char *command;
    Given options;
};

const Fitting &fitting(Command command)
{
    static const Fitting list{
        "a list of events",
        {"--json", "--csv", "--raw", "--follow", "--category", "--name", "--since", "--until"}};
    static const Fitting statistics{"--stats", {"--stats", "--json"}};
    static const Fitting send{"send", {"--to"}};
    static const Fitting handOver{"export", {"--otlp"}};
    static const Fitting purge{"purge", {}};
    switch (command) {
    case Command::Statistics:
        return statistics;
    case Command::Send:
        return send;
    case Command::Export:
        return handOver;
    case Command::Purge:
        return purge;
    default:
        return list;
    }
}

// What a command would pass over in silence is a mistake: "purge --name A" deletes more than A.
void requireFitting(const Options &options, const Given &given)
{
    if (options.command == Command::Help || options.command == Command::Version) {
        return;
    }
    const Fitting &fits = fitting(options.command);
    for (const std::string &option : given) {
        if (fits.options.count(option) == 0) {
            throw UsageError(option + " does not go with " + fits.command + "; see --help");
        }
    }
    if (given.count("--json") + given.count("--csv") + given.count("--raw") > 1) {
        throw UsageError("choose one of --json, --csv and --raw");
    }
}

// Handles the argument at the index, and returns how many it took.
std::size_t takeArgument(Options &options, Given &given, const std::vector<std::string> &arguments,
                         std::size_t at)
{
    const std::string &argument = arguments[at];
    if (const auto flag = flags().find(argument); flag != flags().end()) {
        requireOnce(given, argument);
        flag->second(options);
        return 1;
    }
    if (const auto option = valueOptions().find(argument); option != valueOptions().end()) {
        if (at + 1 == arguments.size()) {
            throw UsageError(argument + " needs a value");
        }
        requireOnce(given, argument);
        option->second(options, arguments[at + 1]);
        return 2;
    }
    if (argument == "--" && at + 2 == arguments.size()) {
        takeDirectory(options, arguments[at + 1]);
        return 2;
    }
    if (argument.rfind('-', 0) == 0) {
        throw UsageError("unknown option '" + argument + "'; see --help");
    }
    if (!takeCommand(options, argument, at)) {
        takeDirectory(options, argument);
    }
    return 1;
}

} // namespace

Options parseOptions(const std::vector<std::string> &arguments)
{
    Options options;
    Given given;
    for (std::size_t at = 0; at < arguments.size();) {
        at += takeArgument(options, given, arguments, at);
    }
    requireComplete(options);
    requireFitting(options, given);
    return options;
}

const char *helpText()
{
    return "usage: rui-events [OPTIONS] DIRECTORY\n"
           "       rui-events --stats [--json] DIRECTORY\n"
           "       rui-events send --to URL DIRECTORY\n"
           "       rui-events export --otlp FILE DIRECTORY\n"
           "       rui-events purge DIRECTORY\n"
           "\n"
           "Prints the usage events that are stored in a configuration directory, oldest first.\n"
           "\n"
           "  --json              one JSON object a line, with every detail\n"
           "  --csv               comma-separated values with a header line\n"
           "  --raw               category, tab, name, tab and the very bytes of the text\n"
           "  --follow            go on with new events until interrupted\n"
           "  --category TEXT     only events of this category\n"
           "  --name TEXT         only events of this name\n"
           "  --since TIME        only events from this UTC time on, as 2026-11-20T18:30:00\n"
           "  --until TIME        only events before this UTC time\n"
           "  --stats             counts: pending, delivered, lost by reason, and by event\n"
           "  send --to URL       deliver what waits now, as in https://collector.example.com\n"
           "  export --otlp FILE  write what waits to a new file instead, one request a line\n"
           "  purge               delete every event; an opt-out that waits for delivery stays\n"
           "  --help              this text\n"
           "  --version           the version\n";
}

} // namespace rui::tool
