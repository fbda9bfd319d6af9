// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/SetAside.h"

#include "store/SystemError.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <ctime>
#include <filesystem>

namespace rui {

namespace {

std::string timeStamp()
{
    const std::time_t now = std::time(nullptr);
    std::tm utc = {};
    gmtime_r(&now, &utc);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%SZ", &utc);
    return text.data();
}

constexpr const char *mark = ".damaged-";

std::string freeName(const std::string &path)
{
    const std::string base = path + mark + timeStamp();
    std::string name = base;
    for (int i = 2; std::filesystem::exists(name); ++i) {
        name = base + "-" + std::to_string(i);
    }
    return name;
}

} // namespace

std::string setAside(const StorePaths &paths)
{
    const std::string database = paths.database();
    const std::string name = freeName(database);
    if (std::rename(database.c_str(), name.c_str()) != 0) {
        throw SystemError(database, errno);
    }
    // Under these names SQLite finds them again should somebody repair the file. They need not
    // exist.
    std::rename((database + "-wal").c_str(), (name + "-wal").c_str());
    std::rename((database + "-shm").c_str(), (name + "-shm").c_str());
    return name;
}

void removeSetAside(const std::string &database)
{
    const std::filesystem::path path(database);
    const std::string prefix = path.filename().string() + mark;
    for (const auto &entry : std::filesystem::directory_iterator(path.parent_path())) {
        if (entry.path().filename().string().rfind(prefix, 0) == 0
            && unlink(entry.path().c_str()) != 0) {
            throw SystemError(entry.path().string(), errno);
        }
    }
}

} // namespace rui
