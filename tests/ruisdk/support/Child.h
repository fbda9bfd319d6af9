// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <map>
#include <string>
#include <vector>

namespace rui::test {

// A program that a test has started. Killed at the end of the test at the latest.
class Child
{
public:
    // The first argument is the program's path. Its output and errors are read through pipes.
    explicit Child(const std::vector<std::string> &arguments,
                   const std::map<std::string, std::string> &environment = {});
    ~Child();
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    // Reads one line, without its end. False when the output ends, or after a minute.
    bool readLine(std::string &line);

    // Reads output until it ends.
    std::string readAll();
    std::string readErrors();

    void sendSignal(int signal) const;

    // The exit status, or the negative number of the signal that killed it.
    int wait();

    pid_t id() const
    {
        return m_process;
    }

private:
    bool fillBuffer();

    pid_t m_process = -1;
    int m_output = -1;
    int m_errors = -1;
    std::string m_buffer;
};

// Runs a program to its end.
struct Outcome
{
    int status;
    std::string output;
    std::string errors;
};
Outcome runProgram(const std::vector<std::string> &arguments,
                   const std::map<std::string, std::string> &environment = {});

} // namespace rui::test
