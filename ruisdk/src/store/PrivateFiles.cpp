// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/PrivateFiles.h"

#include "store/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace rui {

namespace fs = std::filesystem;

namespace {

// Made one by one: the mode of std::filesystem::create_directories depends on the umask.
void makeDirectories(const fs::path &path)
{
    if (path.has_parent_path() && !fs::exists(path.parent_path())) {
        makeDirectories(path.parent_path());
    }
    if (mkdir(path.c_str(), 0700) != 0 && errno != EEXIST) {
        throw SystemError(path.string(), errno);
    }
}

bool isOursAndOpen(const std::string &path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && status.st_uid == geteuid()
           && (status.st_mode & 0077) != 0;
}

} // namespace

void makePrivateDirectory(const std::string &path)
{
    std::error_code error;
    if (!fs::exists(path, error) && !error) {
        makeDirectories(path);
    } else if (isOursAndOpen(path) && fs::is_directory(path, error) && fs::is_empty(path, error)) {
        chmod(path.c_str(), 0700);
    }
    if (!fs::is_directory(path, error)) {
        throw SystemError(path, error ? error.value() : ENOTDIR);
    }
}

void makePrivateFile(const std::string &path)
{
    // Exclusively: an existing database must not even be opened here. Closing any descriptor of a
    // file drops every POSIX lock that this process holds on it, SQLite's included.
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (descriptor >= 0) {
        giveToOwnerOfDirectory(descriptor, path);
        close(descriptor);
    } else if (errno != EEXIST) {
        throw SystemError(path, errno);
    } else if (isOursAndOpen(path)) {
        chmod(path.c_str(), 0600);
    }
}

void giveToOwnerOfDirectory(int descriptor, const std::string &path) noexcept
{
    const std::size_t slash = path.rfind('/');
    const std::string directory = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    struct stat owner = {};
    struct stat file = {};
    if (geteuid() == 0 && stat(directory.c_str(), &owner) == 0 && fstat(descriptor, &file) == 0
        && file.st_uid == 0 && owner.st_uid != 0) {
        // What fails is said by whoever needs the file.
        [[maybe_unused]] const int ignored = fchown(descriptor, owner.st_uid, owner.st_gid);
    }
}

void requirePlainFiles(const StorePaths &paths)
{
    const std::string database = paths.database();
    for (const std::string &path :
         {database, database + "-wal", database + "-shm", paths.replacement(), paths.consent(),
          paths.openingLock(), paths.senderLock()}) {
        struct stat status = {};
        if (lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode)) {
            throw Failure(RUI_STORAGE, path + ": is a symbolic link; remove it");
        }
    }
}

} // namespace rui
