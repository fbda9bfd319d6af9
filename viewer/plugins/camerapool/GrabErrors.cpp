// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "GrabErrors.h"

namespace CameraPool {
namespace {

struct Row
{
    ArvBufferStatus status;
    CGrabError error;
};

// The codes are what the viewer's users and statistics know the failures by: a number once given
// stays.
constexpr Row Table[] = {
    {ARV_BUFFER_STATUS_SUCCESS, {0, ""}},
    {ARV_BUFFER_STATUS_UNKNOWN, {0x0A000001, "The image failed for an unknown reason."}},
    {ARV_BUFFER_STATUS_CLEARED, {0x0A000002, "The image buffer was cleared before use."}},
    {ARV_BUFFER_STATUS_TIMEOUT,
     {0x0A000003, "The image is incomplete: its packets did not arrive in time."}},
    {ARV_BUFFER_STATUS_MISSING_PACKETS,
     {0x0A000004, "The image is incomplete: packets were lost on the way."}},
    {ARV_BUFFER_STATUS_WRONG_PACKET_ID,
     {0x0A000005, "The image is damaged: packets with wrong numbers arrived."}},
    {ARV_BUFFER_STATUS_SIZE_MISMATCH,
     {0x0A000006, "The image is larger than the camera announced."}},
    {ARV_BUFFER_STATUS_FILLING, {0x0A000007, "The image was handed over before it was whole."}},
    {ARV_BUFFER_STATUS_ABORTED, {0x0A000008, "The image was given up because the grab ended."}},
};

constexpr const CGrabError &Unknown = Table[1].error;
constexpr CGrabError NoImage{0x0A000009, "No image arrived in time."};

} // namespace

const CGrabError &grabError(ArvBufferStatus status)
{
    for (const Row &row : Table) {
        if (row.status == status) {
            return row.error;
        }
    }
    return Unknown;
}

const CGrabError &noImageError()
{
    return NoImage;
}

} // namespace CameraPool
