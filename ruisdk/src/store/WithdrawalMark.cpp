// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "store/WithdrawalMark.h"

#include "core/Random.h"
#include "store/PrivateFiles.h"
#include "store/SystemError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <string_view>

namespace rui {

namespace {

// As in "ruiSDK consent 1 0123456789abcdef 0123456789abcdef\n": far less than what a device writes
// in one piece.
constexpr std::string_view heading = "ruiSDK consent 1 ";
constexpr std::size_t tokenSize = 16;
constexpr std::size_t fileSize = heading.size() + 2 * (tokenSize + 1);

std::string newToken()
{
    std::array<char, tokenSize + 1> text{};
    std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(random64()));
    return text.data();
}

template <typename Call>
ssize_t uninterrupted(Call call)
{
    ssize_t result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

bool isToken(std::string_view text)
{
    return text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

WithdrawalMark::Content parse(std::string_view text)
{
    constexpr std::size_t second = heading.size() + tokenSize + 1;
    const bool complete =
        text.substr(0, heading.size()) == heading && text[second - 1] == ' ' && text.back() == '\n';
    if (!complete) {
        return {true, {}, {}};
    }
    const std::string_view requested = text.substr(heading.size(), tokenSize);
    const std::string_view done = text.substr(second, tokenSize);
    if (!isToken(requested) || !isToken(done)) {
        return {true, {}, {}};
    }
    return {true, std::string(requested), std::string(done)};
}

// A device that fails to give the file proves nothing.
WithdrawalMark::Content readFrom(int descriptor, const std::string &path)
{
    // One more than a whole file, so that a longer one is noticed.
    std::array<char, fileSize + 1> text{};
    const ssize_t size =
        uninterrupted([&] { return pread(descriptor, text.data(), text.size(), 0); });
    if (size == static_cast<ssize_t>(fileSize)) {
        return parse({text.data(), fileSize});
    }
    struct stat status = {};
    if (size < 0 || fstat(descriptor, &status) != 0) {
        throw SystemError(path, errno);
    }
    if (size == 0 && status.st_size > 0) {
        throw SystemError(path, EIO);
    }
    return {true, {}, {}};
}

bool isPlainFile(int descriptor)
{
    struct stat status = {};
    return fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

WithdrawalMark::~WithdrawalMark()
{
    close();
}

void WithdrawalMark::close() noexcept
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
    m_descriptor = -1;
}

// False when there is no file.
bool WithdrawalMark::open()
{
    close();
    // Not blocked by a pipe that somebody has put there.
    m_descriptor = ::open(m_path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (m_descriptor < 0) {
        if (errno == ENOENT) {
            return false;
        }
        throw SystemError(m_path, errno);
    }
    if (!isPlainFile(m_descriptor)) {
        close();
        throw Failure(RUI_STORAGE, m_path + ": is no plain file; remove it");
    }
    return true;
}

WithdrawalMark::Content WithdrawalMark::read()
{
    return open() ? readFrom(m_descriptor, m_path) : Content{};
}

std::string WithdrawalMark::current()
{
    return m_descriptor < 0 ? std::string() : readFrom(m_descriptor, m_path).requested;
}

std::string WithdrawalMark::create()
{
    const std::string token = newToken();
    if (!open()) {
        m_descriptor =
            ::open(m_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0600);
        if (m_descriptor < 0) {
            throw SystemError(m_path, errno);
        }
        giveToOwnerOfDirectory(m_descriptor, m_path);
    }
    if (ftruncate(m_descriptor, 0) != 0) {
        throw SystemError(m_path, errno);
    }
    write({true, token, token});
    return token;
}

void WithdrawalMark::write(const Content &content)
{
    const std::string text = std::string(heading) + content.requested + ' ' + content.done + '\n';
    errno = ENOSPC;
    const auto all = static_cast<ssize_t>(text.size());
    if (uninterrupted([&] { return pwrite(m_descriptor, text.data(), text.size(), 0); }) != all) {
        throw SystemError(m_path, errno);
    }
}

void WithdrawalMark::flush()
{
    if (fdatasync(m_descriptor) != 0) {
        throw SystemError(m_path, errno);
    }
}

void WithdrawalMark::request()
{
    try {
        const Content content = read();
        if (content.requested.empty()) {
            return;
        }
        write({true, newToken(), content.done});
        flush();
    } catch (const Failure &) {
        if (!ruin()) {
            throw;
        }
    }
}

// Both need no room, not even on a file system that never writes in place.
bool WithdrawalMark::ruin() noexcept
{
    const bool isEmpty =
        m_descriptor >= 0 && ftruncate(m_descriptor, 0) == 0 && fdatasync(m_descriptor) == 0;
    return isEmpty || unlink(m_path.c_str()) == 0;
}

void WithdrawalMark::noteDone(const std::string &token) noexcept
{
    constexpr off_t position = heading.size() + tokenSize + 1;
    if (m_descriptor >= 0 && token.size() == tokenSize) {
        // Without it, a database that is damaged later is taken for one that was withdrawn.
        static_cast<void>(pwrite(m_descriptor, token.data(), token.size(), position) < 0);
    }
}

} // namespace rui
