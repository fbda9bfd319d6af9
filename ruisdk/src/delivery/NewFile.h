// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace rui {

// A file that appears under its name when it is complete, or not at all, and never takes the place
// of another one. Until then it stands beside it under a name of its own. For this user alone.
// Used by one thread. Throws Failure: RUI_FULL when the disk is full, RUI_STORAGE otherwise.
class NewFile
{
public:
    // Fails when something has the name already.
    explicit NewFile(std::string path);
    // Removes what was written, unless it was published.
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    void write(std::string_view text);

    // Flushes everything to the device.
    void complete();

    // Gives the file its name. Call it once, after complete().
    void publish();

private:
    const std::string m_path;
    const std::string m_part;
    int m_descriptor = -1;
};

} // namespace rui
