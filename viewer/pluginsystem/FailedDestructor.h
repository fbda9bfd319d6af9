// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <exception>

#include <QString>

namespace PluginSystem {

/// The exit status of a viewer that ends because of a destructor; 0 at first. GUI thread.
void setStatusAfterFailedDestructor(int status);

/// While it lives, an exception that leaves the destructor of a plug-in ends the process in words:
/// by the rules of the language nobody can catch it. It is the last that happens in a viewer, after
/// all plug-ins are uninitialised, so nothing is lost. GUI thread, at most one at a time.
class CFailedDestructor
{
public:
    explicit CFailedDestructor(const QString &plugin);
    ~CFailedDestructor();

    Q_DISABLE_COPY_MOVE(CFailedDestructor)

private:
    std::terminate_handler m_before;
};

} // namespace PluginSystem
