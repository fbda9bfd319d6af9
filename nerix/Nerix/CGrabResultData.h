// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <GenICam/gcstring.h>
#include <NerixCoreExport.h>

#include <cstdint>
#include <memory>
#include <vector>

#include <QMetaType>

namespace Nerix {

/// An image, as the camera sent it.
struct CImage
{
    int width = 0;  ///< pixels
    int height = 0; ///< pixels
    std::uint32_t pixelFormat =
        0; ///< code of the Pixel Format Naming Convention, for example Mono8
    std::vector<std::uint8_t> data; ///< the pixels; empty where only the image is told of
};

/// The outcome of grabbing one image. Immutable, so every thread may read it.
class NERIXCORE_EXPORT CGrabResultData
{
public:
    /// A whole image, with or without its pixels.
    explicit CGrabResultData(CImage image);

    /// An image that failed, with the transport's code and a description, which may be null.
    CGrabResultData(std::uint32_t errorCode, GenICam::gcstring errorDescription);

    bool GrabSucceeded() const;

    /// 0 for an image that succeeded.
    std::uint32_t GetErrorCode() const;

    /// Null for an image that succeeded, or where the transport gives no description.
    GenICam::gcstring GetErrorDescription() const;

    /// What the camera sent; without width, height and format for an image that failed.
    ///
    /// The results of `CameraPool::ICameraStatusService::cameraImageGrabbed` carry no pixels: they
    /// wait in the queue of each plug-in that listens, and a plug-in that is busy would otherwise
    /// fill the memory.
    const CImage &image() const;

private:
    CImage m_image;
    GenICam::gcstring m_errorDescription;
    std::uint32_t m_errorCode = 0;
    bool m_succeeded = false;
};

/// Shared outcome of grabbing one image; copies cost a reference count. Null before the first
/// image.
using CGrabResultPtr = std::shared_ptr<const CGrabResultData>;

} // namespace Nerix

Q_DECLARE_METATYPE(Nerix::CGrabResultPtr)
