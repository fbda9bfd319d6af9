// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "TemporaryDirectory.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace rui::test {

namespace fs = std::filesystem;

TemporaryDirectory::TemporaryDirectory(Where where)
{
    const fs::path memory = "/dev/shm";
    const bool inMemory = where == Where::Memory && access(memory.c_str(), W_OK) == 0;
    const fs::path base = inMemory ? memory : fs::temp_directory_path();
    std::string name = (base / "ruisdk-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no temporary directory: " + name);
    }
    m_path = name;
}

TemporaryDirectory::~TemporaryDirectory()
{
    std::error_code error;
    fs::permissions(m_path, fs::perms::owner_all, error);
    fs::remove_all(m_path, error);
}

std::string readFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string &path, const std::string &content)
{
    std::ofstream(path, std::ios::binary) << content;
}

unsigned modeOf(const std::string &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

std::string fileBeginningWith(const std::string &directory, const std::string &prefix)
{
    for (const auto &entry : fs::directory_iterator(directory)) {
        if (entry.path().filename().string().rfind(prefix, 0) == 0) {
            return entry.path().string();
        }
    }
    return {};
}

} // namespace rui::test
