// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CDescriptionFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace Simulator {

CDescriptionFile::CDescriptionFile(const std::string &content)
    : m_descriptor(memfd_create("camera.xml", MFD_CLOEXEC))
{
    const auto size = static_cast<ssize_t>(content.size());
    if (m_descriptor < 0 || write(m_descriptor, content.data(), content.size()) != size) {
        const int code = errno;
        close(m_descriptor);
        throw std::runtime_error(std::string("the camera's description cannot be kept in memory (")
                                 + std::strerror(code) + "): free some memory");
    }
}

CDescriptionFile::~CDescriptionFile()
{
    close(m_descriptor);
}

std::string CDescriptionFile::path() const
{
    return "/proc/self/fd/" + std::to_string(m_descriptor);
}

} // namespace Simulator
