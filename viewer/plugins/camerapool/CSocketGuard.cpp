// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CSocketGuard.h"

#include <dlfcn.h>
#include <gio/gio.h>

#include <utility>

namespace CameraPool {
namespace {

thread_local CSocketGuard *current = nullptr;

} // namespace

CSocketGuard::CSocketGuard(SocketFilter::Program program)
    : m_program(std::move(program))
{
    Q_ASSERT(!current);
    current = this;
}

CSocketGuard::~CSocketGuard()
{
    current = nullptr;
}

bool CSocketGuard::guard(int socket)
{
    if (!current) {
        return true;
    }
    current->m_sockets.push_back(socket);
    return SocketFilter::attach(socket, current->m_program);
}

} // namespace CameraPool

// In the place of GLib's function of this name for the whole program, Aravis included.
extern "C" Q_DECL_EXPORT gboolean g_socket_bind(GSocket *socket, GSocketAddress *address,
                                                gboolean allowReuse, GError **error)
{
    static const auto next =
        reinterpret_cast<decltype(&g_socket_bind)>(::dlsym(RTLD_NEXT, "g_socket_bind"));
    if (g_socket_get_socket_type(socket) == G_SOCKET_TYPE_DATAGRAM
        && g_socket_get_family(socket) == G_SOCKET_FAMILY_IPV4
        && !CameraPool::CSocketGuard::guard(g_socket_get_fd(socket))) {
        g_set_error_literal(error, G_IO_ERROR, G_IO_ERROR_PERMISSION_DENIED,
                            "the system does not let strangers be kept from its packets");
        return FALSE;
    }
    return next(socket, address, allowReuse, error);
}
