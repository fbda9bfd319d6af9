// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace Simulator {

// A file in memory that only this process can open by path; Aravis wants descriptions as files.
// It leaves nothing behind, however the process ends.
class CDescriptionFile
{
public:
    // Throws std::runtime_error with a line for the user when there is no memory for it.
    explicit CDescriptionFile(const std::string &content);
    ~CDescriptionFile();
    CDescriptionFile(const CDescriptionFile &) = delete;
    CDescriptionFile &operator=(const CDescriptionFile &) = delete;

    // Valid as long as the object lives.
    std::string path() const;

private:
    int m_descriptor;
};

} // namespace Simulator
