// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CFrameSource.h"

#include "Registers.h"
#include "TestPattern.h"

#include <arv.h>

namespace Simulator {

namespace {

enum AcquisitionMode : guint32 { SingleFrame = 2, MultiFrame = 3 };
enum TestImage : guint32 { StillRamp = 1, Grey = 2 };

// Aravis makes a new buffer for each acquisition, so the number of images of an acquisition is kept
// with it.
constexpr const char *FramesKey = "simulator-frames";

} // namespace

void CFrameSource::attach(ArvFakeCamera *camera)
{
    m_camera = camera;
    arv_fake_camera_set_fill_pattern(camera, onFill, this);
}

void CFrameSource::onFill(ArvBuffer *buffer, void *source, std::uint32_t exposure,
                          std::uint32_t gain, std::uint32_t pixelFormat)
{
    auto *self = static_cast<CFrameSource *>(source);
    self->fill(buffer, exposure, gain, pixelFormat);
    self->count(buffer);
}

void CFrameSource::fill(ArvBuffer *buffer, std::uint32_t exposure, std::uint32_t gain,
                        std::uint32_t pixelFormat)
{
    Tone settings;
    settings.exposure = exposure;
    settings.gain = gain;
    settings.brightness = static_cast<std::int32_t>(registerValue(Registers::Brightness));
    settings.invert = registerValue(Registers::Invert) != 0;
    const ToneTable tone = toneTable(settings);

    // Aravis fills no buffer that is smaller than the payload, and tells the buffer's size only
    // once it is filled.
    const size_t size = arv_fake_camera_get_payload(m_camera);
    size_t unknown = 0;
    auto *image =
        static_cast<std::uint8_t *>(const_cast<void *>(arv_buffer_get_data(buffer, &unknown)));
    const std::uint32_t shown = registerValue(Registers::TestImage);
    if (shown == Grey) {
        fillGrey(image, size, tone);
        return;
    }
    const std::uint32_t shift = shown == StillRamp ? 0 : registerValue(Registers::FrameTotal);
    fillRamp(image, size,
             {registerValue(ARV_FAKE_CAMERA_REGISTER_WIDTH),
              ARV_PIXEL_FORMAT_BIT_PER_PIXEL(pixelFormat) / 8},
             shift, tone);
}

void CFrameSource::count(ArvBuffer *buffer)
{
    arv_fake_camera_write_register(m_camera, Registers::FrameTotal,
                                   registerValue(Registers::FrameTotal) + 1);
    auto *object = G_OBJECT(buffer);
    const guint frames = GPOINTER_TO_UINT(g_object_get_data(object, FramesKey)) + 1;
    g_object_set_data(object, FramesKey, GUINT_TO_POINTER(frames));

    const guint32 mode = registerValue(ARV_FAKE_CAMERA_REGISTER_ACQUISITION_MODE);
    if (mode == SingleFrame
        || (mode == MultiFrame && frames >= registerValue(Registers::FrameCount))) {
        arv_fake_camera_write_register(m_camera, ARV_FAKE_CAMERA_REGISTER_ACQUISITION, 0);
    }
}

std::uint32_t CFrameSource::registerValue(std::uint32_t address) const
{
    guint32 value = 0;
    arv_fake_camera_read_register(m_camera, address, &value);
    return value;
}

} // namespace Simulator
