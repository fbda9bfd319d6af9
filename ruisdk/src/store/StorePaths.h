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

    // Those of the directory in which this database stands.
    static StorePaths of(const std::string &database)
    {
        return StorePaths(database.substr(0, database.rfind('/')));
    }

    const std::string &directory() const
    {
        return m_directory;
    }
    std::string database() const
    {
        return m_directory + "/usage-events.sqlite";
    }
    // Takes the place of a damaged database once it is complete.
    std::string replacement() const
    {
        return database() + ".new";
    }
    // See WithdrawalMark.
    std::string consent() const
    {
        return m_directory + "/usage-events.consent";
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
