// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Options.h"

#include "Description.h"
#include "OptionValues.h"
#include "Registers.h"

#include <glib.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>

namespace Simulator {

namespace {

constexpr const char *SeeHelp = ": see nerix-camera-simulator --help";

constexpr const char *Summary =
    "A GigE Vision camera on a loopback address, for trying and testing programs without\n"
    "a camera.";

constexpr const char *Description =
    "Commands, one a line on standard input, each answered with a line on standard output:\n"
    "  loss RATIO   lose that part of the stream's packets from now on\n"
    "  vanish       be silent, as if unplugged\n"
    "  return       be plugged in again: same address, same serial number\n"
    "  quit         end\n"
    "The end of standard input ends nothing. SIGINT and SIGTERM end the camera.";

using Setter = std::function<void(Options &, const std::string &)>;

// By what GLib calls an option when it is met.
const std::map<std::string, Setter> &setters()
{
    using O = Options;
    using V = const std::string;
    static const std::map<std::string, Setter> table{
        {"--address", [](O &o, V &v) { o.address = checkedAddress(v); }},
        {"--serial", [](O &o, V &v) { o.identity.serial = checkedSerial(v); }},
        {"--vendor",
         [](O &o, V &v) { o.identity.vendor = checkedText("--vendor", v, Registers::VendorSize); }},
        {"--model",
         [](O &o, V &v) { o.identity.model = checkedText("--model", v, Registers::ModelSize); }},
        {"--user-name",
         [](O &o, V &v) {
             o.identity.userName = checkedText("--user-name", v, Registers::UserNameSize);
         }},
        {"--loss", [](O &o, V &v) { o.loss = checkedLoss(v); }},
        {"--features", [](O &o, V &v) { o.featureCount = checkedFeatureCount(v); }},
        {"--help", [](O &o, V &) { o.help = true; }},
        {"-h", [](O &o, V &) { o.help = true; }},
        {"--version", [](O &o, V &) { o.version = true; }},
    };
    return table;
}

GQuark refusalQuark()
{
    return g_quark_from_static_string("simulator-refusal");
}

gboolean onOption(const gchar *name, const gchar *value, gpointer options, GError **error)
{
    try {
        setters().at(name)(*static_cast<Options *>(options), value ? value : "");
        return TRUE;
    } catch (const std::invalid_argument &refusal) {
        g_set_error_literal(error, refusalQuark(), 0, refusal.what());
        return FALSE;
    }
}

GOptionEntry entry(const char *name, const char *what, const char *value, char letter = 0)
{
    // As a "file name" a value comes as it is, not converted by a locale that may refuse it.
    const gint flags = value ? G_OPTION_FLAG_FILENAME : G_OPTION_FLAG_NO_ARG;
    return {name, letter, flags, G_OPTION_ARG_CALLBACK, reinterpret_cast<gpointer>(&onOption),
            what, value};
}

using Context = std::unique_ptr<GOptionContext, void (*)(GOptionContext *)>;

Context makeContext(Options *options)
{
    const std::array<GOptionEntry, 10> entries{
        entry("address", "Loopback address of the camera (127.0.0.1)", "ADDRESS"),
        entry("serial", "Serial number (the digits of the address)", "SERIAL"),
        entry("vendor", "Name of the maker (Ostrand)", "NAME"),
        entry("model", "Name of the model (XQZ-2000)", "NAME"),
        entry("user-name", "Name that a user gave the camera (none)", "NAME"),
        entry("loss", "Part of the stream's packets that is lost, 0 to 1 (0)", "RATIO"),
        entry("features", "Number of features; 840 makes a large camera", "NUMBER"),
        entry("help", "Print this and end", nullptr, 'h'),
        entry("version", "Print the version and end", nullptr),
        GOptionEntry{}};
    Context context(g_option_context_new(nullptr), g_option_context_free);
    g_option_context_set_help_enabled(context.get(), FALSE);
    g_option_context_set_summary(context.get(), Summary);
    g_option_context_set_description(context.get(), Description);
    GOptionGroup *group = g_option_group_new("main", "", "", options, nullptr);
    g_option_group_add_entries(group, entries.data());
    g_option_context_set_main_group(context.get(), group);
    return context;
}

[[noreturn]] void refuse(GError *error)
{
    const std::unique_ptr<GError, void (*)(GError *)> guard(error, g_error_free);
    // GLib's own refusals name the argument but no remedy.
    const bool isOurs = error->domain == refusalQuark();
    throw std::invalid_argument(std::string(error->message) + (isOurs ? "" : SeeHelp));
}

// The digits of the address, three a byte: unique among the cameras of a machine.
std::string serialFor(const std::string &address)
{
    std::string serial;
    std::size_t begin = 0;
    while (begin <= address.size()) {
        const std::size_t end = std::min(address.find('.', begin), address.size());
        const std::string part = address.substr(begin, end - begin);
        serial += std::string(3 - part.size(), '0') + part;
        begin = end + 1;
    }
    return serial;
}

void completeDefaults(Options &options)
{
    if (options.identity.serial.empty()) {
        options.identity.serial = serialFor(options.address);
    }
    if (options.featureCount == 0) {
        options.featureCount = baseFeatureCount();
    }
}

} // namespace

Options parsedOptions(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "nerix-camera-simulator");
    std::vector<char *> words;
    for (std::string &argument : arguments) {
        words.push_back(argument.data());
    }
    words.push_back(nullptr);

    Options options;
    const Context context = makeContext(&options);
    char **remaining = words.data(); // GLib takes out the words that it understands
    int count = static_cast<int>(arguments.size());
    GError *error = nullptr;
    if (!g_option_context_parse(context.get(), &count, &remaining, &error)) {
        refuse(error);
    }
    if (count > 1) {
        throw std::invalid_argument(std::string("unexpected argument ") + remaining[1] + SeeHelp);
    }
    completeDefaults(options);
    return options;
}

std::string helpText()
{
    const Context context = makeContext(nullptr);
    const std::unique_ptr<char, void (*)(void *)> text(
        g_option_context_get_help(context.get(), FALSE, nullptr), g_free);
    return text.get();
}

} // namespace Simulator
