// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

// The packets of GigE Vision streams (GVSP), right ones and, with what is changed in them, wrong
// ones.
namespace GvspPackets {

enum Content { Leader = 1, Trailer = 2, Data = 3, AllIn = 4, Multipart = 7 };
enum Payload { Image = 0x0001, ExtendedChunkData = 0x0005, MultipartPayload = 0x000a };

// How the number of a frame is told: with 16 bits, or with 64.
enum Ids { Short, Extended };

// The data bytes of a packet of 1500 bytes.
constexpr int DataSize = 1464;

QByteArray packet(Content content, quint64 frame, quint32 number, const QByteArray &payload,
                  Ids ids = Short);

QByteArray leader(quint64 frame, quint32 width, quint32 height, Payload payload = Image,
                  quint32 pixelFormat = 0x01080001, Ids ids = Short);
QByteArray trailer(quint64 frame, quint32 number, quint32 height, Payload payload = Image,
                   Ids ids = Short);

// A whole image of \a width x \a height with all pixels \a value, 8 bits each.
QList<QByteArray> image(quint64 frame, quint32 width, quint32 height, char value, Ids ids = Short);

} // namespace GvspPackets
