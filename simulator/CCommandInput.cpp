// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CCommandInput.h"

#include <glib-unix.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace Simulator {

CCommandInput::CCommandInput(int descriptor, Handler handler)
    : m_handler(std::move(handler))
    , m_source(
          g_unix_fd_add(descriptor, GIOCondition(G_IO_IN | G_IO_HUP | G_IO_ERR), onReadable, this))
{}

CCommandInput::~CCommandInput()
{
    if (m_source != 0) {
        g_source_remove(m_source);
    }
}

gboolean CCommandInput::onReadable(gint descriptor, GIOCondition, gpointer self)
{
    auto *input = static_cast<CCommandInput *>(self);
    if (input->readSome(descriptor)) {
        return G_SOURCE_CONTINUE;
    }
    input->m_source = 0;
    return G_SOURCE_REMOVE;
}

bool CCommandInput::readSome(int descriptor)
{
    std::array<char, 4096> bytes{};
    const ssize_t count = read(descriptor, bytes.data(), bytes.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) {
        return true;
    }
    if (count > 0) {
        m_pending.append(bytes.data(), static_cast<std::size_t>(count));
    } else if (!m_pending.empty()) {
        m_pending += '\n';
    }
    handOn();
    return count > 0;
}

void CCommandInput::handOn()
{
    for (auto end = m_pending.find('\n'); end != std::string::npos; end = m_pending.find('\n')) {
        const std::string line = m_pending.substr(0, end);
        m_pending.erase(0, end + 1);
        m_handler(line);
    }
}

} // namespace Simulator
