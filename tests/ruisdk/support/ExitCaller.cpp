// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Calls the library while and after the program exits:
//
//     rui-test-exit static|threads DIRECTORY
//
// static: a static object that is older than the library's exit handler makes every call on an
// instance of each state, and reports the results. threads: three of them go on calling while the
// program returns from main.
#include "Session.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <string>
#include <thread>

namespace {

using rui::test::Session;

struct Late
{
    const char *state;
    ruiInstance instance;
};

void callAll(const Late &late)
{
    const ruiInstance i = late.instance;
    std::printf("%s %d", late.state, ruiCreateConfig(i, "/tmp/unused", "", "", "", 3, "", 0, 0));
    std::printf(" %d", ruiSetProductData(i, "", "", "", ""));
    std::printf(" %d", ruiOptOut(i));
    std::printf(" %d", ruiStartSDK(i));
    std::printf(" %d", ruiTrackEvent(i, "c", "n", ""));
    std::printf(" %d", ruiTrackEventText(i, "c", "n", "t", ""));
    std::printf(" %d", ruiStopSDK(i, 0));
    std::printf(" %d\n", ruiDestroyInstance(i));
}

// Constructed before main, so destroyed after the handlers that the library registers.
struct LateCaller
{
    ~LateCaller()
    {
        for (const Late &late : instances) {
            if (late.instance != nullptr) {
                callAll(late);
            }
        }
        if (instances[0].instance != nullptr) {
            std::printf("create %s\n", ruiCreateInstance(0) == nullptr ? "null" : "given");
        }
        std::fflush(stdout);
    }

    std::array<Late, 5> instances{};
};
LateCaller lateCaller;

void prepareStatic(const std::string &directory)
{
    // Never destroyed, as those of a program that does not tidy up.
    static auto *kept = new std::array<Session, 5>;
    std::array<Session *, 5> sessions{};
    for (std::size_t i = 0; i < sessions.size(); ++i) {
        sessions[i] = &(*kept)[i];
    }
    lateCaller.instances = {{{"created", sessions[0]->handle()},
                             {"configured", sessions[1]->handle()},
                             {"running", sessions[2]->handle()},
                             {"stopped", sessions[3]->handle()},
                             {"optedOut", sessions[4]->handle()}}};
    sessions[1]->config(directory);
    sessions[4]->config(directory);
    sessions[4]->product();
    sessions[4]->optOut();
    sessions[2]->open(directory);
    sessions[3]->open(directory);
    sessions[3]->stop(1);
}

void callForEver(Session *session)
{
    while (true) {
        session->track("text");
        session->stop(1);
        session->start();
    }
}

void prepareThreads(const std::string &directory)
{
    auto *session = new Session;
    session->open(directory);
    for (int i = 0; i < 3; ++i) {
        std::thread(callForEver, session).detach();
    }
    for (int i = 0; i < 20; ++i) {
        session->track("main");
    }
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        return 98;
    }
    if (std::string(argv[1]) == "static") {
        prepareStatic(argv[2]);
    } else {
        prepareThreads(argv[2]);
    }
    return 0;
}
