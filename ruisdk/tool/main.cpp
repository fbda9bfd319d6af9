// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Commands.h"
#include "core/Failure.h"
#include "core/Limits.h"
#include "Listing.h"
#include "store/SqliteError.h"
#include "store/StoreOpening.h"

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

// What only reads leaves a damaged database to those who may write.
bool writes(const Options &options)
{
    return options.command == Command::Send || options.command == Command::Export
           || options.command == Command::Purge;
}

// Damage that is come upon is mended as in a session, and the command goes on with what could be
// saved.
void runRepairing(const Options &options)
{
    try {
        run(options);
    } catch (const SqliteError &error) {
        if (!error.isDamage() || !writes(options)) {
            throw;
        }
        OpeningOptions opening;
        opening.verify = true;
        opening.create = false;
        openStore(StorePaths(options.directory), opening,
                  std::make_shared<BusyLimit>(Limits().callBusyLimit));
        run(options);
    }
}

} // namespace

// 0: done, 1: it failed, 2: the command line makes no sense.
int main(int argc, char **argv)
{
    try {
        runRepairing(parseOptions(std::vector<std::string>(argv + 1, argv + argc)));
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
