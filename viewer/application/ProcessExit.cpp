// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/ProcessExit.h"

#include <dlfcn.h>
#include <unistd.h>

#include <cstdlib>
#include <thread>
#include <utility>

namespace Application {

namespace {

std::function<void()> exitHandler;
std::thread::id handlerThread;
bool isInHandler = false; // used in handlerThread alone

} // namespace

CProcessExit::CProcessExit(std::function<void()> handler)
{
    exitHandler = std::move(handler);
    handlerThread = std::this_thread::get_id();
}

CProcessExit::~CProcessExit()
{
    exitHandler = nullptr;
    handlerThread = {};
}

namespace {

void endInOrder(int status)
{
    if (handlerThread != std::this_thread::get_id()) {
        return;
    }
    if (!std::exchange(isInHandler, true)) {
        exitHandler();
    }
    ::_exit(status);
}

} // namespace

} // namespace Application

// Stands in front of that of the C library for all libraries that the program loads.
extern "C" [[noreturn]] __attribute__((visibility("default"))) void exit(int status) noexcept
{
    Application::endInOrder(status);
    using Exit = void (*)(int);
    reinterpret_cast<Exit>(dlsym(RTLD_NEXT, "exit"))(status);
    ::_exit(status);
}
