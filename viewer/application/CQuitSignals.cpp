// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CQuitSignals.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <stdexcept>
#include <utility>

namespace Application {

namespace {

constexpr char signalCame = 's';
constexpr char endOfThread = 'e';

// All that a signal handler can reach.
volatile std::sig_atomic_t writeEnd = -1;

void write(char byte)
{
    while (::write(writeEnd, &byte, 1) < 0 && errno == EINTR) {
    }
}

void onSignal(int /*number*/)
{
    const int savedErrno = errno;
    write(signalCame);
    errno = savedErrno;
}

// Whoever started the viewer with nohup wants it to outlive the terminal.
bool isIgnored(int number)
{
    struct sigaction action = {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

void handleSignals(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, nullptr);
    sigaction(SIGTERM, &action, nullptr);
    if (!isIgnored(SIGHUP)) {
        sigaction(SIGHUP, &action, nullptr);
    }
}

} // namespace

CQuitSignals::CQuitSignals(std::function<void()> handler)
    : m_handler(std::move(handler))
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe for signals: too many open files");
    }
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_thread = std::thread(&CQuitSignals::run, this);
    handleSignals(onSignal);
}

CQuitSignals::~CQuitSignals()
{
    handleSignals(SIG_DFL);
    write(endOfThread);
    m_thread.join();
    ::close(writeEnd);
    ::close(m_readEnd);
    writeEnd = -1;
}

void CQuitSignals::run()
{
    char byte = signalCame;
    while (byte == signalCame) {
        const ssize_t count = ::read(m_readEnd, &byte, 1);
        if (count == 1 && byte == signalCame) {
            m_handler();
        } else if (count == 0 || (count < 0 && errno != EINTR)) {
            return;
        }
    }
}

} // namespace Application
