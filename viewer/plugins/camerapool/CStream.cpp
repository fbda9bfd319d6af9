// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CStream.h"

#include "CDeviceAccess.h"
#include "GrabErrors.h"
#include "GuardedStream.h"
#include "ImageBuffers.h"
#include "Logging.h"

#include <ParameterCollection/CParameterException.h>

#include <initializer_list>
#include <utility>

namespace CameraPool {
namespace {

using namespace std::chrono_literals;

// The system's default lost 97 of 100 frames of 512 x 512 at 25 fps where Aravis may not use raw
// sockets; with this size none was lost.
constexpr int SocketBufferSize = 4194304;

// For what comes on top of exposure and frame period: readout, transfer, a busy computer.
constexpr auto TransferPatience = 5000ms;

bool hasFeature(ArvDevice *device, const char *name)
{
    return arv_device_is_feature_available(device, name, nullptr) != FALSE;
}

// A camera without the mode, or one that does not let it be set, grabs as it is set.
void setMode(ArvDevice *device, GrabMode mode)
{
    if (hasFeature(device, "AcquisitionMode")) {
        CGError error;
        arv_device_set_string_feature_value(device, "AcquisitionMode",
                                            mode == GrabSingle ? "SingleFrame" : "Continuous",
                                            error.out());
        if (error) {
            qCInfo(lcCameraPool, "acquisition mode: %s", qUtf8Printable(error.message()));
        }
    }
}

// The first of \a names that can be read and is above 0; 0 if none is.
double firstPositive(ArvDevice *device, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        CGError error;
        const double value = hasFeature(device, name)
                                 ? arv_device_get_float_feature_value(device, name, error.out())
                                 : 0.0;
        if (value > 0.0 && !error) {
            return value;
        }
    }
    return 0.0;
}

std::chrono::milliseconds exposure(ArvDevice *device)
{
    const double microseconds = firstPositive(device, {"ExposureTime", "ExposureTimeAbs"});
    return std::chrono::milliseconds(qint64(microseconds / 1000.0));
}

// A camera may keep to its frame rate also where a single image is asked for. A rate that is
// switched off can be far too low, which only makes the wait for a missing image longer.
std::chrono::milliseconds framePeriod(ArvDevice *device)
{
    const double rate = firstPositive(device, {"AcquisitionFrameRate", "AcquisitionFrameRateAbs"});
    return std::chrono::milliseconds(rate > 0.0 ? qint64(1000.0 / rate) : 0);
}

bool waitsForTrigger(ArvDevice *device)
{
    CGError error;
    return hasFeature(device, "TriggerMode")
           && qstrcmp(arv_device_get_string_feature_value(device, "TriggerMode", error.out()), "On")
                  == 0;
}

// 0 where the camera does not tell.
qint64 number(ArvDevice *device, const char *name)
{
    CGError error;
    const gint64 value = hasFeature(device, name)
                             ? arv_device_get_integer_feature_value(device, name, error.out())
                             : 0;
    return error ? 0 : value;
}

// 0 also for what is too large for an image.
qint64 pixelBytes(ArvDevice *device)
{
    const qint64 width = number(device, "Width");
    const qint64 height = number(device, "Height");
    const auto format = ArvPixelFormat(number(device, "PixelFormat"));
    constexpr qint64 mostInARow = 0xffffff;
    return width > mostInARow || height > mostInARow
               ? 0
               : width * height * ARV_PIXEL_FORMAT_BIT_PER_PIXEL(format) / 8;
}

void fillWithBuffers(ArvStream *stream, const ImageBuffers::Sizes &sizes)
{
    for (int i = 0; i < ImageBuffers::count(sizes); ++i) {
        arv_stream_push_buffer(stream, arv_buffer_new_allocate(std::size_t(sizes.payload)));
    }
}

// What the start brings back from the device's thread. Shared, because a task is copied.
struct Started
{
    GObjectPtr<ArvStream> stream;
    std::chrono::milliseconds singlePatience{0};
};

QString cannotGrab(const QString &name, const char *why)
{
    return QStringLiteral("%1 cannot grab: close it, open it again and grab once more; %2")
        .arg(name, QLatin1String(why));
}

ImageBuffers::Sizes checkedSizes(const CDeviceAccess &access, const QString &name)
{
    CGError error;
    ImageBuffers::Sizes sizes;
    sizes.payload =
        arv_device_get_integer_feature_value(access.device(), "PayloadSize", error.out());
    access.check(error, cannotGrab(name, "the size of an image is unknown"));
    sizes.pixels = pixelBytes(access.device());
    sizes.available = availableMemory();
    const QString refusal = ImageBuffers::refusal(sizes);
    if (!refusal.isEmpty()) {
        throw ParameterCollection::CParameterException(
            QStringLiteral("%1 cannot grab: it %2").arg(name, refusal));
    }
    return sizes;
}

std::shared_ptr<Started> start(const CDeviceAccess &access, const QString &name, GrabMode mode)
{
    ArvDevice *device = access.device();
    setMode(device, mode);
    auto started = std::make_shared<Started>();
    if (!waitsForTrigger(device)) {
        started->singlePatience = exposure(device) + framePeriod(device) + TransferPatience;
    }

    const ImageBuffers::Sizes sizes = checkedSizes(access, name);
    CGError error;
    started->stream = createGuardedStream(device, SocketBufferSize, error.out());
    access.check(error, cannotGrab(name, "the stream cannot be made"));
    if (ARV_IS_GV_STREAM(started->stream.get())) {
        g_object_set(started->stream.get(), "socket-buffer", ARV_GV_STREAM_SOCKET_BUFFER_FIXED,
                     "socket-buffer-size", SocketBufferSize, nullptr);
    }
    fillWithBuffers(started->stream.get(), sizes);
    arv_device_execute_command(device, "AcquisitionStart", error.out());
    access.check(error, cannotGrab(name, "the camera does not start"));
    return started;
}

// A camera of GigE Vision 1 that adds chunk data to its images announces these as chunk data.
bool isImage(ArvBufferPayloadType type)
{
    return type == ARV_BUFFER_PAYLOAD_TYPE_IMAGE
           || type == ARV_BUFFER_PAYLOAD_TYPE_EXTENDED_CHUNK_DATA;
}

Nerix::CGrabResultPtr imageOf(ArvBuffer *buffer)
{
    Nerix::CImage image;
    std::size_t size = 0;
    const auto *data = static_cast<const std::uint8_t *>(arv_buffer_get_data(buffer, &size));
    image.data.assign(data, data + size);
    if (isImage(arv_buffer_get_payload_type(buffer))) {
        image.width = arv_buffer_get_image_width(buffer);
        image.height = arv_buffer_get_image_height(buffer);
        image.pixelFormat = arv_buffer_get_image_pixel_format(buffer);
    }
    return std::make_shared<Nerix::CGrabResultData>(std::move(image));
}

Nerix::CGrabResultPtr resultOf(ArvBuffer *buffer)
{
    const ArvBufferStatus status = arv_buffer_get_status(buffer);
    if (status == ARV_BUFFER_STATUS_SUCCESS) {
        return imageOf(buffer);
    }
    const CGrabError &error = grabError(status);
    return std::make_shared<Nerix::CGrabResultData>(error.code, error.text);
}

} // namespace

CStream::CStream(QSharedPointer<CDevice> device, GrabMode mode)
    : m_device(std::move(device))
{
    const auto started =
        m_device->call([name = m_device->name(), mode](const CDeviceAccess &access) {
            return start(access, name, mode);
        });
    m_stream = std::move(started->stream);
    m_singlePatience = started->singlePatience;
}

// Aravis tells the camera that the stream is over, which takes seconds if it does not answer.
CStream::~CStream()
{
    const auto stream = std::make_shared<GObjectPtr<ArvStream>>(std::move(m_stream));
    try {
        m_device->call([stream](const CDeviceAccess &) { stream->reset(); });
    } catch (const ParameterCollection::CParameterException &) {
        m_device->keepUntilClosed(stream);
    }
}

Nerix::CGrabResultPtr CStream::next(std::chrono::milliseconds patience)
{
    const auto microseconds = std::chrono::microseconds(patience).count();
    ArvBuffer *buffer = arv_stream_timeout_pop_buffer(m_stream.get(), guint64(microseconds));
    if (!buffer) {
        return {};
    }
    const Nerix::CGrabResultPtr result = resultOf(buffer);
    arv_stream_push_buffer(m_stream.get(), buffer);
    return result;
}

void CStream::stop()
{
    try {
        m_device->call([](const CDeviceAccess &access) {
            CGError error;
            arv_device_execute_command(access.device(), "AcquisitionStop", error.out());
            access.check(error, QStringLiteral("the camera does not stop"));
        });
    } catch (const ParameterCollection::CParameterException &exception) {
        qCInfo(lcCameraPool, "%s", exception.what());
    }
}

} // namespace CameraPool
