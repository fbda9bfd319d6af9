// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/Readability.h"

#include "store/Database.h"
#include "store/SystemError.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace rui {

namespace {

constexpr int chunkBytes = 1024 * 1024;

[[noreturn]] void fail(const std::string &path, const std::string &why)
{
    throw Failure(RUI_STORAGE, path + ": " + why);
}

// Through SQLite's own descriptor: a second one of this process would take SQLite's locks with it
// when it is closed.
void readDatabase(const std::string &path)
{
    const Database database(path, Database::Access::ReadWrite,
                            std::make_shared<BusyLimit>(std::chrono::milliseconds(0)));
    sqlite3_file *file = nullptr;
    sqlite3_int64 size = 0;
    sqlite3_file_control(database.handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (file == nullptr || file->pMethods->xFileSize(file, &size) != SQLITE_OK) {
        fail(path, "its size cannot be read");
    }
    std::vector<char> chunk(chunkBytes);
    for (sqlite3_int64 at = 0; at < size; at += chunkBytes) {
        const int code = file->pMethods->xRead(file, chunk.data(), chunkBytes, at);
        if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ) {
            fail(path, sqlite3_errstr(code));
        }
    }
}

// SQLite holds no locks on the journal.
void readJournal(const std::string &path)
{
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        if (errno != ENOENT) {
            throw SystemError(path, errno);
        }
        return;
    }
    std::vector<char> chunk(chunkBytes);
    ssize_t got = 1;
    while (got > 0) {
        got = read(descriptor, chunk.data(), chunk.size());
    }
    const int error = errno;
    close(descriptor);
    if (got < 0) {
        throw SystemError(path, error);
    }
}

} // namespace

void requireReadable(const StorePaths &paths)
{
    readDatabase(paths.database());
    readJournal(paths.database() + "-wal");
}

} // namespace rui
