// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Listing.h"

#include "Printer.h"

#include <chrono>
#include <thread>

namespace rui::tool {

namespace {

// Half of what is promised, so that what comes right after a look is seen in time.
constexpr std::chrono::milliseconds lookEvery{40};

std::int64_t printNew(const RecordReader &reader, const Options &options, std::int64_t after,
                      Printer &printer)
{
    const std::int64_t last = reader.read(
        options.filter, after, [&printer](const Record &record) { printer.print(record); });
    printer.flush();
    return last;
}

// Prints what comes until the database is replaced or the end is wanted.
template <typename Wanted>
void followOne(const RecordReader &reader, const Options &options, Printer &printer,
               Wanted isEndWanted)
{
    std::int64_t version = reader.version();
    std::int64_t last = printNew(reader, options, 0, printer);
    while (!isEndWanted() && !reader.hasMoved()) {
        std::this_thread::sleep_for(lookEvery);
        const std::int64_t now = reader.version();
        if (now != version) {
            version = now;
            last = printNew(reader, options, last, printer);
        }
    }
}

} // namespace

void list(const Options &options, std::ostream &out)
{
    const RecordReader reader{StorePaths(options.directory)};
    const auto printer = makePrinter(options.format, out);
    printer->begin();
    printNew(reader, options, 0, *printer);
}

void follow(const Options &options, std::ostream &out, const std::atomic<bool> &stop)
{
    const auto isEndWanted = [&] { return stop || !out; };
    const auto printer = makePrinter(options.format, out);
    printer->begin();
    printer->flush();
    while (!isEndWanted()) {
        if (const auto reader = RecordReader::tryOpen(StorePaths(options.directory))) {
            followOne(*reader, options, *printer, isEndWanted);
        } else {
            std::this_thread::sleep_for(lookEvery);
        }
    }
}

} // namespace rui::tool
