// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGrab.h"

namespace {

constexpr int BufferCount = 20;
constexpr int SocketBufferSize = 4194304; // bytes

} // namespace

CGrab::CGrab(CGigEClient &client)
    : m_stream(arv_device_create_stream(client.device(), nullptr, nullptr, nullptr))
{
    if (!m_stream) {
        return;
    }
    g_object_set(m_stream, "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_FIXED, "socket-buffer-size",
                 SocketBufferSize, nullptr);
    const auto size = arv_device_get_integer_feature_value(client.device(), "PayloadSize", nullptr);
    for (int i = 0; i < BufferCount; ++i) {
        arv_stream_push_buffer(m_stream, arv_buffer_new(static_cast<size_t>(size), nullptr));
    }
}

CGrab::~CGrab()
{
    g_clear_object(&m_stream);
}

bool CGrab::isOpen() const
{
    return m_stream != nullptr;
}

Frame CGrab::next(int limitMilliseconds)
{
    constexpr guint64 MicrosecondsPerMillisecond = 1000;
    ArvBuffer *buffer = arv_stream_timeout_pop_buffer(
        m_stream, static_cast<guint64>(limitMilliseconds) * MicrosecondsPerMillisecond);
    if (!buffer) {
        return {};
    }
    size_t size = 0;
    const void *data = arv_buffer_get_data(buffer, &size);
    const Frame frame{arv_buffer_get_status(buffer),
                      QByteArray(static_cast<const char *>(data), static_cast<int>(size))};
    arv_stream_push_buffer(m_stream, buffer);
    return frame;
}
