// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Child.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>

extern char **environ;

namespace rui::test {

namespace {

constexpr int patienceMilliseconds = 60000;

std::vector<char *> pointers(std::vector<std::string> &texts)
{
    std::vector<char *> result;
    for (std::string &text : texts) {
        result.push_back(text.data());
    }
    result.push_back(nullptr);
    return result;
}

std::vector<std::string> environmentWith(const std::map<std::string, std::string> &extra)
{
    std::vector<std::string> result;
    for (char **entry = environ; *entry != nullptr; ++entry) {
        result.emplace_back(*entry);
    }
    for (const auto &[name, value] : extra) {
        result.push_back(name + "=" + value);
    }
    return result;
}

std::string drain(int descriptor)
{
    std::string text;
    std::array<char, 4096> chunk{};
    for (ssize_t got = 1; got > 0;) {
        got = read(descriptor, chunk.data(), chunk.size());
        text.append(chunk.data(), static_cast<std::size_t>(got > 0 ? got : 0));
    }
    return text;
}

} // namespace

Child::Child(const std::vector<std::string> &arguments,
             const std::map<std::string, std::string> &environment)
{
    std::array<int, 2> output{};
    std::array<int, 2> errors{};
    if (pipe2(output.data(), O_CLOEXEC) != 0 || pipe2(errors.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("no pipe");
    }
    // A child that nobody reads is soon blocked, and not done before it can be interrupted.
    fcntl(output[0], F_SETPIPE_SZ, 4096);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, errors[1], STDERR_FILENO);
    std::vector<std::string> words = arguments;
    std::vector<std::string> variables = environmentWith(environment);
    const int error = posix_spawnp(&m_process, words.front().c_str(), &actions, nullptr,
                                   pointers(words).data(), pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    close(output[1]);
    close(errors[1]);
    m_output = output[0];
    m_errors = errors[0];
    if (error != 0) {
        throw std::runtime_error("cannot start " + words.front());
    }
}

Child::~Child()
{
    if (m_process > 0) {
        sendSignal(SIGKILL);
        wait();
    }
    close(m_output);
    close(m_errors);
}

bool Child::fillBuffer()
{
    pollfd ready = {m_output, POLLIN, 0};
    if (poll(&ready, 1, patienceMilliseconds) <= 0) {
        return false;
    }
    std::array<char, 4096> chunk{};
    const ssize_t got = read(m_output, chunk.data(), chunk.size());
    m_buffer.append(chunk.data(), static_cast<std::size_t>(got > 0 ? got : 0));
    return got > 0;
}

bool Child::readLine(std::string &line)
{
    std::size_t end = m_buffer.find('\n');
    while (end == std::string::npos) {
        if (!fillBuffer()) {
            return false;
        }
        end = m_buffer.find('\n');
    }
    line = m_buffer.substr(0, end);
    m_buffer.erase(0, end + 1);
    return true;
}

std::string Child::readAll()
{
    std::string text = m_buffer + drain(m_output);
    m_buffer.clear();
    return text;
}

std::string Child::readErrors()
{
    return drain(m_errors);
}

void Child::sendSignal(int signal) const
{
    kill(m_process, signal);
}

int Child::wait()
{
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

Outcome runProgram(const std::vector<std::string> &arguments,
                   const std::map<std::string, std::string> &environment)
{
    Child child(arguments, environment);
    Outcome outcome;
    outcome.output = child.readAll();
    outcome.errors = child.readErrors();
    outcome.status = child.wait();
    return outcome;
}

} // namespace rui::test
