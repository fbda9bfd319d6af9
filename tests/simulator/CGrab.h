// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CGigEClient.h"

// What arrived of an image.
struct Frame
{
    ArvBufferStatus status = ARV_BUFFER_STATUS_UNKNOWN; // unknown: nothing arrived in time
    QByteArray image;
};

// A stream of images from the camera of a client, with a socket buffer large enough for loopback.
// The acquisition is started and stopped by the client. Ends before the client.
class CGrab
{
public:
    explicit CGrab(CGigEClient &client);
    ~CGrab();
    CGrab(const CGrab &) = delete;
    CGrab &operator=(const CGrab &) = delete;

    bool isOpen() const;
    // Waits for the next image, whole or not.
    Frame next(int limitMilliseconds = 5000);

private:
    ArvStream *m_stream = nullptr;
};
