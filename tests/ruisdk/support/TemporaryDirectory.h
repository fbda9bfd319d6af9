// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace rui::test {

// An empty directory that is removed at the end of a test.
class TemporaryDirectory
{
public:
    // Memory: in a file system without a device, for a test that makes hundreds of them; where
    // there is none, like the others.
    enum class Where { Default, Memory };
    explicit TemporaryDirectory(Where where = Where::Default);
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;

    std::string path() const
    {
        return m_path.string();
    }

    // A path in the directory.
    std::string path(const std::string &name) const
    {
        return (m_path / name).string();
    }

private:
    std::filesystem::path m_path;
};

std::string readFile(const std::string &path);
void writeFile(const std::string &path, const std::string &content);

// The permission bits, as in 0600.
unsigned modeOf(const std::string &path);

// The path of the file in the directory whose name begins so; empty when there is none.
std::string fileBeginningWith(const std::string &directory, const std::string &prefix);

} // namespace rui::test
