// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "core/Failure.h"
#include "Listing.h"

#include <csignal>
#include <iostream>

namespace {

using namespace rui;
using namespace rui::tool;

std::atomic<bool> stopRequested{false};

void requestStop(int)
{
    stopRequested = true;
}

void stopOnSignals()
{
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
}

void run(const Options &options)
{
    switch (options.command) {
    case Command::Help:
        std::cout << helpText();
        return;
    case Command::Version:
        std::cout << "rui-events " RUI_VERSION "\n";
        return;
    case Command::List:
        break;
    }
    if (options.follow) {
        stopOnSignals();
        follow(options, std::cout, stopRequested);
    } else {
        list(options, std::cout);
    }
}

} // namespace

// 0: done, 1: it failed, 2: the command line makes no sense.
int main(int argc, char **argv)
{
    try {
        run(parseOptions(std::vector<std::string>(argv + 1, argv + argc)));
        return 0;
    } catch (const UsageError &error) {
        std::cerr << "rui-events: " << error.what() << '\n';
        return 2;
    } catch (const std::exception &error) {
        std::cerr << "rui-events: " << error.what() << '\n';
        return 1;
    }
}
