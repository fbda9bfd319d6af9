// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CDevice.h"
#include "CStreamCounters.h"
#include "GLibPointers.h"

#include <Nerix/CGrabResultData.h>

#include <chrono>

#include <QSharedPointer>

namespace CameraPool {

/// What the camera shall do when it is started.
enum GrabMode {
    GrabSingle,    ///< one image
    GrabContinuous ///< images until it is stopped
};

/// The stream of one grab: made anew for each, so that its counters begin at 0. Used in the grab's
/// thread; the device itself is only touched through `CDevice::call`.
class CStream
{
public:
    /// Sets the acquisition mode, makes the stream and starts the camera.
    /// @throws ParameterCollection::CParameterException if the camera refuses or is lost.
    CStream(QSharedPointer<CDevice> device, GrabMode mode);

    /// Ends the stream; the camera should be stopped before. Does not wait for a lost camera.
    ~CStream();

    Q_DISABLE_COPY_MOVE(CStream)

    /// The next image or failure, copied out of the buffer, which goes back to the stream. Null if
    /// none arrives within \a patience.
    Nerix::CGrabResultPtr next(std::chrono::milliseconds patience);

    /// Stops the camera, if it still answers. What arrived by then is still given by `next`.
    void stop();

    CStreamCounters counters() const
    {
        return CStreamCounters::of(m_stream.get());
    }

    /// How long a single image may take to arrive: exposure, frame period and all. None for a
    /// camera that waits for a trigger.
    std::chrono::milliseconds singlePatience() const
    {
        return m_singlePatience;
    }

private:
    const QSharedPointer<CDevice> m_device;
    GObjectPtr<ArvStream> m_stream;
    std::chrono::milliseconds m_singlePatience{0};
};

} // namespace CameraPool
