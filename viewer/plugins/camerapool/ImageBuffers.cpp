// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "ImageBuffers.h"

#include <algorithm>

#include <QFile>

namespace CameraPool {
namespace ImageBuffers {
namespace {

// Enough for the frames of a fast camera while the grab's thread waits for its turn.
constexpr int MostBuffers = 16;

// One is filled, one is looked at, one waits.
constexpr int FewestBuffers = 3;

// What the stream may take of the memory that is free: the images are copied for the windows too.
constexpr int MemoryShare = 4;

// What an image may have besides its pixels: several components, and data about it.
constexpr qint64 MostComponents = 16;
constexpr qint64 MostChunkData = 16 * 1024 * 1024;

bool fitsTheFormat(const Sizes &sizes)
{
    return sizes.pixels <= 0 || (sizes.payload - MostChunkData) / MostComponents <= sizes.pixels;
}

} // namespace

QString refusal(const Sizes &sizes)
{
    if (sizes.payload <= 0 || !fitsTheFormat(sizes)) {
        return QStringLiteral("announces images of %1 bytes, which does not fit their format: set "
                              "the image format anew, or switch the camera off and on")
            .arg(sizes.payload);
    }
    if (sizes.payload > sizes.available / MemoryShare / FewestBuffers) {
        return QStringLiteral("has images of %1 bytes, for which this computer has too little "
                              "memory: make the images smaller, or close other programs")
            .arg(sizes.payload);
    }
    return {};
}

int count(const Sizes &sizes)
{
    const qint64 affordable = sizes.available / MemoryShare / std::max<qint64>(sizes.payload, 1);
    return int(std::clamp<qint64>(affordable, FewestBuffers, MostBuffers));
}

} // namespace ImageBuffers

qint64 availableMemory()
{
    QFile file(QStringLiteral("/proc/meminfo"));
    const QList<QByteArray> lines =
        file.open(QIODevice::ReadOnly) ? file.readAll().split('\n') : QList<QByteArray>();
    for (const QByteArray &line : lines) {
        if (line.startsWith("MemAvailable:")) {
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
        }
    }
    return 0;
}

} // namespace CameraPool
