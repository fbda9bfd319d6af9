// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#ifdef __SANITIZE_THREAD__

#include "EmittingThreads.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace TsanSupport {

namespace {

using Clock = std::chrono::steady_clock;

// An emission that only posts events takes some microseconds, if its thread is not made to wait.
constexpr std::chrono::milliseconds usualEmission(2);
constexpr std::chrono::seconds longestEmission(1);

constexpr int mostThreads = 512;

// Relaxed throughout: any other order would tell the sanitizer of a hand-over that Qt does not
// make.
struct Place
{
    std::atomic<int> thread{0}; ///< as the kernel numbers it; 0 when the place is free
    std::atomic<int> depth{0};
    std::atomic<unsigned> turns{0}; ///< grows with everything that the thread tells
};

constexpr auto relaxed = std::memory_order_relaxed;

std::array<Place, mostThreads> places;

// Without destructors, so that they can be asked until the very end of the thread.
thread_local Place *ownPlace = nullptr;
thread_local bool hasEnded = false;

struct EndOfThread
{
    ~EndOfThread()
    {
        hasEnded = true;
        ownPlace->depth.store(0, relaxed);
        ownPlace->turns.fetch_add(1, relaxed);
        ownPlace->thread.store(0, relaxed);
        ownPlace = nullptr;
    }
};

void takePlace()
{
    const int self = int(syscall(SYS_gettid));
    for (Place &place : places) {
        int nobody = 0;
        if (place.thread.compare_exchange_strong(nobody, self, relaxed)) {
            thread_local EndOfThread giveBack;
            ownPlace = &place;
            return;
        }
    }
    std::fputs("more threads than EmittingThreads.cpp has places\n", stderr);
    std::abort();
}

void setDepth(int depth)
{
    if (!ownPlace && !hasEnded) {
        takePlace();
    }
    if (ownPlace) {
        ownPlace->depth.store(depth, relaxed);
        ownPlace->turns.fetch_add(1, relaxed);
    }
}

int ownDepth()
{
    return ownPlace ? ownPlace->depth.load(relaxed) : 0;
}

/// Whether the kernel lets \a thread run, or would if a processor were free. Calls the kernel
/// itself: the sanitizer takes what goes over a file for a hand-over between threads.
bool isRunning(int thread)
{
    char text[512];
    std::snprintf(text, sizeof text, "/proc/self/task/%d/stat", thread);
    const int file = int(syscall(SYS_openat, AT_FDCWD, text, O_RDONLY | O_CLOEXEC));
    if (file < 0) {
        return false;
    }
    const long length = syscall(SYS_read, file, text, sizeof text - 1);
    syscall(SYS_close, file);
    text[length > 0 ? length : 0] = 0;
    const char *endOfName = std::strrchr(text, ')'); // the state comes next, as in ") R"
    return endOfName && std::strncmp(endOfName, ") R", 3) == 0;
}

void waitFor(const Place &place)
{
    const unsigned turn = place.turns.load(relaxed);
    const Clock::time_point begin = Clock::now();
    while (place.depth.load(relaxed) > 0 && place.turns.load(relaxed) == turn) {
        const Clock::duration waited = Clock::now() - begin;
        if (waited > longestEmission
            || (waited > usualEmission && !isRunning(place.thread.load(relaxed)))) {
            return;
        }
        std::this_thread::yield();
    }
}

} // namespace

void enterEmission()
{
    setDepth(ownDepth() + 1);
}

void leaveEmission()
{
    setDepth(ownDepth() - 1);
}

int interruptEmissions()
{
    const int interrupted = ownDepth();
    setDepth(0);
    return interrupted;
}

void resumeEmissions(int interrupted)
{
    setDepth(interrupted);
}

void waitForOtherEmissions()
{
    for (const Place &place : places) {
        if (&place != ownPlace && place.depth.load(relaxed) > 0) {
            waitFor(place);
        }
    }
}

} // namespace TsanSupport

#endif
