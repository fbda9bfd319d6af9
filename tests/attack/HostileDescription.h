// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// The description of features that a hostile camera gives: the least that an image needs. Where its
// registers are stands here too.
namespace HostileDescription {

constexpr quint32 Width = 0xb000;
constexpr quint32 Height = 0xb004;
constexpr quint32 PayloadSize = 0xb008; // 8 bytes, signed
constexpr quint32 Acquisition = 0xb010; // 1: the camera sends images
constexpr quint32 PixelFormat = 0xb014;
constexpr quint32 ExtendedIds = 0xb018; // 1: images shall have long numbers

QByteArray text();

} // namespace HostileDescription
