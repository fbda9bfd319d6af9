// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace rui {

// The request to withdraw consent, in a file that is made with the directory and only changed in
// place from then on, so that neither a full disk nor a locked database can refuse it. Each
// request is a new random token; the database keeps the one that it has carried out. A file that
// is missing or damaged stands for a request, as it may have held one.
//
// One object is used by one thread at a time. Throws Failure.
class WithdrawalMark
{
public:
    explicit WithdrawalMark(std::string path)
        : m_path(std::move(path))
    {}
    ~WithdrawalMark();
    WithdrawalMark(const WithdrawalMark &) = delete;
    WithdrawalMark &operator=(const WithdrawalMark &) = delete;

    // What the file says. Both texts are empty when it is missing or damaged.
    struct Content
    {
        bool isThere = false;
        std::string requested;
        // A copy of what the database keeps, for the case that the database is damaged.
        std::string done;
    };

    // Looks at the file anew. RUI_STORAGE when it cannot be opened, or is no plain file.
    Content read();

    // The request that stands in the file that was opened last, also if it was removed meanwhile:
    // cheap, for the way of every event. Empty when it is damaged.
    std::string current();

    // Makes the file, or repairs it, with nothing that is to be done, and returns its token. The
    // caller holds the opening lock. It is not waited for the device: a power cut in the first
    // moments of a directory may end its consent.
    std::string create();

    // Keeps a new request; returns when it is on the device. Where the file cannot be written it
    // is emptied or removed, which means the same.
    void request();

    // Notes that this request was carried out. What fails here does no harm.
    void noteDone(const std::string &token) noexcept;

private:
    bool open();
    void close() noexcept;
    void write(const Content &content);
    void flush();
    bool ruin() noexcept;

    std::string m_path;
    int m_descriptor = -1;
};

} // namespace rui
