// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Tracks events and reports each call that returned 0 on standard output, as "<writer> <number>":
//
//     rui-test-writer DIRECTORY WRITER COUNT [HOST [END]]
//
// Ends with status 0, or with the result of the first call that failed before the first event.
// A track call that fails is reported as "<writer> <number> failed <result>". END: "stop" ends the
// session (the default), "exit" exits in its middle, "stay" waits to be killed.
#include "Session.h"

#include <unistd.h>

#include <cstdlib>
#include <string>

namespace {

void report(const std::string &line)
{
    // One write, so that a kill leaves no half line behind.
    if (write(STDOUT_FILENO, line.data(), line.size()) < 0) {
        _exit(99);
    }
}

void trackOne(rui::test::Session &session, const std::string &writer, int number)
{
    const std::string event = writer + " " + std::to_string(number);
    const int32_t result = session.track(event);
    report(result == RUI_OK ? event + "\n" : event + " failed " + std::to_string(result) + "\n");
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4) {
        return 98;
    }
    const std::string end = argc > 5 ? argv[5] : "stop";
    rui::test::Session session;
    if (const int32_t result = session.open(argv[1], argc > 4 ? argv[4] : "")) {
        return result;
    }
    for (int number = 1; number <= std::stoi(argv[3]); ++number) {
        trackOne(session, argv[2], number);
    }
    if (end == "exit") {
        std::exit(0);
    }
    while (end == "stay") {
        pause();
    }
    session.stop();
    return 0;
}
