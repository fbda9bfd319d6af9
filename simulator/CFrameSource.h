// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

typedef struct _ArvFakeCamera ArvFakeCamera;
typedef struct _ArvBuffer ArvBuffer;

namespace Simulator {

// Makes the images of a camera and ends an acquisition that has a given length, which Aravis' fake
// camera does not do. Lives at least as long as the camera; works in the camera's own thread.
class CFrameSource
{
public:
    // Makes the source the one that fills the camera's images. Called once.
    void attach(ArvFakeCamera *camera);

private:
    static void onFill(ArvBuffer *buffer, void *source, std::uint32_t exposure, std::uint32_t gain,
                       std::uint32_t pixelFormat);
    void fill(ArvBuffer *buffer, std::uint32_t exposure, std::uint32_t gain,
              std::uint32_t pixelFormat);
    void count(ArvBuffer *buffer);
    std::uint32_t registerValue(std::uint32_t address) const;

    ArvFakeCamera *m_camera = nullptr;
};

} // namespace Simulator
