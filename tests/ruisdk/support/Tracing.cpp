// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Tracing.h"

#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace rui::test {

namespace {

using Words = std::vector<std::string>;

void append(Words &words, const Words &more)
{
    words.insert(words.end(), more.begin(), more.end());
}

Words filesOf(const std::string &directory)
{
    Words words = {"-P", directory};
    for (const char *ending :
         {"sqlite", "sqlite-wal", "sqlite-shm", "consent", "opening", "sender"}) {
        append(words, {"-P", directory + "/usage-events." + ending});
    }
    return words;
}

Outcome trace(const std::string &log, const Words &options, const std::string &directory,
              const Words &arguments)
{
    Words words = {"strace", "-f", "-qq", "-o", log};
    append(words, options);
    append(words, {RUI_WRITER_PROGRAM, directory});
    append(words, arguments);
    // The leak checker cannot stop threads that are traced already.
    return runProgram(words, {{"ASAN_OPTIONS", "detect_leaks=0"}});
}

} // namespace

bool canTrace()
{
    return runProgram({"strace", "-o", "/dev/null", "true"}).status == 0;
}

bool wantsAllFaults()
{
    const char *wanted = std::getenv("RUI_FAULTS");
    return wanted != nullptr && std::string(wanted) == "all";
}

CallCounts countCalls(const std::string &log, const std::string &directory, const Words &arguments,
                      bool onFiles)
{
    trace(log, onFiles ? filesOf(directory) : Words{}, directory, arguments);
    std::map<std::string, CallCounts> countsOfThread;
    std::istringstream lines(readFile(log));
    // As in "8789 pwrite64(3, ..."; what was interrupted by another thread goes on with "<...".
    for (std::string thread, line; lines >> thread && std::getline(lines, line);) {
        const std::size_t name = line.find_first_not_of(' ');
        const std::size_t end = line.find('(');
        if (end != std::string::npos && line[name] != '<') {
            ++countsOfThread[thread][line.substr(name, end - name)];
        }
    }
    CallCounts most;
    for (const auto &[thread, counts] : countsOfThread) {
        for (const auto &[name, count] : counts) {
            most[name] = std::max(most[name], count);
        }
    }
    return most;
}

std::vector<int> callsToFail(const Fault &fault, const CallCounts &counts)
{
    const auto found = counts.find(fault.call);
    if (found == counts.end()) {
        return {};
    }
    // Another run may make some more calls.
    const int last = wantsAllFaults() ? found->second + 20 : found->second;
    const int runs = wantsAllFaults() ? last : std::min(fault.runs, last);
    std::vector<int> calls;
    for (int run = 1; run <= runs; ++run) {
        calls.push_back(runs == 1 ? 1 : 1 + (run - 1) * (last - 1) / (runs - 1));
    }
    return calls;
}

std::set<std::string> callsWithoutFault(const std::vector<Fault> &faults, const CallCounts &counts)
{
    std::set<std::string> names;
    for (const auto &[name, count] : counts) {
        names.insert(name);
    }
    EXPECT_FALSE(names.empty());
    for (const Fault &fault : faults) {
        names.erase(fault.call);
    }
#ifdef __SANITIZE_THREAD__
    names.erase("fstat"); // the sanitizer's own, inside what it puts before the C library
#endif
    return names;
}

WriterRun readReport(const Outcome &outcome)
{
    WriterRun run;
    std::istringstream lines(outcome.output);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t failed = line.find(" failed ");
        if (failed == std::string::npos) {
            run.acknowledged.push_back(line);
        } else {
            run.results.insert(line.substr(failed + 8));
        }
    }
    if (outcome.status != 0) {
        run.results.insert(std::to_string(outcome.status));
    }
    return run;
}

WriterRun runWithFault(const std::string &log, const Fault &fault, int call,
                       const std::string &directory, const Words &arguments, bool onFiles)
{
    const std::string inject =
        std::string("inject=") + fault.call + ":" + fault.effect + ":when=" + std::to_string(call);
    Words options = {"-e", inject};
    append(options, onFiles ? filesOf(directory) : Words{});
    WriterRun run = readReport(trace(log, options, directory, arguments));
    run.injected = readFile(log).find("INJECTED") != std::string::npos;
    return run;
}

} // namespace rui::test
