// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Child.h"

#include <map>
#include <set>

namespace rui::test {

// What is done to a system call instead of what it was asked for.
struct Fault
{
    const char *call;   // its name
    const char *word;   // for the name of the test
    const char *effect; // as strace takes it, as in "error=EIO" or "retval=0"
    // What the library's functions may return because of it, beside 0.
    std::set<std::string> results;
    // SQLite tries a failed lock again for seconds: fewer of them by default.
    int runs = 7;
};

// What rui-test-writer reported.
struct WriterRun
{
    bool injected = false;
    std::vector<std::string> acknowledged;
    // The results of calls that failed; the negative number of the signal that killed it.
    std::set<std::string> results;
};

bool canTrace();

// RUI_FAULTS=all: every call in turn instead of a selection.
bool wantsAllFaults();

// How often each system call is made by the thread that makes it most often.
using CallCounts = std::map<std::string, int>;

// Those of the writer; on the files of the directory, or all of them. The trace is written to
// `log`.
CallCounts countCalls(const std::string &log, const std::string &directory,
                      const std::vector<std::string> &arguments, bool onFiles = true);

// The calls that are to fail in turn: spread from the first one to the last one.
std::vector<int> callsToFail(const Fault &fault, const CallCounts &counts);

// The names of the calls that none of the faults is put into.
std::set<std::string> callsWithoutFault(const std::vector<Fault> &faults, const CallCounts &counts);

WriterRun readReport(const Outcome &outcome);

// Runs the writer with these arguments on the directory. The n-th call of each of its threads
// fails; for calls that name no file, `onFiles` is false. The trace is written to
// `log`.
WriterRun runWithFault(const std::string &log, const Fault &fault, int call,
                       const std::string &directory, const std::vector<std::string> &arguments,
                       bool onFiles = true);

} // namespace rui::test
