// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "delivery/NewFile.h"

#include "core/Random.h"
#include "store/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>

namespace rui {

namespace {

[[noreturn]] void failAsTaken(const std::string &path)
{
    throw Failure(RUI_STORAGE, path + ": is there already; name a file that is not");
}

std::string partName(const std::string &path)
{
    return path + "." + randomUuid().substr(0, 8) + ".part";
}

void requireFree(const std::string &path)
{
    struct stat status = {};
    if (lstat(path.c_str(), &status) == 0) {
        failAsTaken(path);
    }
}

// The name is on the device only when its directory is. Some file systems cannot do that, and then
// there is nothing else to do.
void flushDirectory(const std::string &path)
{
    const std::string directory = std::filesystem::path(path).parent_path().string();
    const int descriptor =
        open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor >= 0) {
        fsync(descriptor);
        close(descriptor);
    }
}

// Returns an errno, 0 when it was done.
int renameUnlessTaken(const std::string &from, const std::string &to)
{
    if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // The file system does not know of that: the look before is all there is.
    requireFree(to);
    return rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

} // namespace

NewFile::NewFile(std::string path)
    : m_path(std::move(path))
    , m_part(partName(m_path))
{
    requireFree(m_path);
    m_descriptor = open(m_part.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                        S_IRUSR | S_IWUSR);
    if (m_descriptor < 0) {
        throw SystemError(m_path, errno);
    }
}

NewFile::~NewFile()
{
    if (m_descriptor >= 0) {
        close(m_descriptor);
        unlink(m_part.c_str());
    }
}

void NewFile::write(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(m_descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR) {
            throw SystemError(m_path, errno);
        }
        text.remove_prefix(static_cast<std::size_t>(written < 0 ? 0 : written));
    }
}

void NewFile::complete()
{
    if (fsync(m_descriptor) != 0) {
        throw SystemError(m_path, errno);
    }
}

void NewFile::publish()
{
    const int error = renameUnlessTaken(m_part, m_path);
    if (error == EEXIST) {
        failAsTaken(m_path);
    }
    if (error != 0) {
        throw SystemError(m_path, error);
    }
    close(m_descriptor);
    m_descriptor = -1;
    flushDirectory(m_path);
}

} // namespace rui
