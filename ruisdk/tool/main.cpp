// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"
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

void printRecords(const Options &options)
{
    if (options.follow) {
        stopOnSignals();
        follow(options, std::cout, stopRequested);
    } else {
        list(options, std::cout);
    }
}

void requireWritten(std::ostream &out)
{
    if (!out.flush()) {
        throw std::runtime_error("the output cannot be written; make room where it goes");
    }
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
    case Command::Statistics:
        showStatistics(options, std::cout);
        return;
    case Command::Send:
        sendNow(options, std::cout);
        return;
    case Command::Export:
        handOverTo(options, std::cout);
        return;
    case Command::Purge:
        purgeAll(options, std::cout);
        return;
    case Command::List:
        printRecords(options);
    }
}

} // namespace

// 0: done, 1: it failed, 2: the command line makes no sense.
int main(int argc, char **argv)
{
    try {
        run(parseOptions(std::vector<std::string>(argv + 1, argv + argc)));
        requireWritten(std::cout);
        return 0;
    } catch (const UsageError &error) {
        std::cerr << "rui-events: " << error.what() << '\n';
        return 2;
    } catch (const std::exception &error) {
        std::cerr << "rui-events: " << error.what() << '\n';
        return 1;
    }
}
