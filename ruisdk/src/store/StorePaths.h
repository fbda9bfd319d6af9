// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rui {

// The files of a configuration directory.
class StorePaths
{
public:
    explicit StorePaths(std::string directory)
        : m_directory(std::move(directory))
    {}

    const std::string &directory() const
    {
        return m_directory;
    }
    std::string database() const
    {
        return m_directory + "/usage-events.sqlite";
    }
    // Held while the database is opened, created or set aside.
    std::string openingLock() const
    {
        return m_directory + "/usage-events.opening";
    }
    // Held by the one process that delivers.
    std::string senderLock() const
    {
        return m_directory + "/usage-events.sender";
    }

private:
    std::string m_directory;
};

} // namespace rui
