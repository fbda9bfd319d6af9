// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CDevice.h"
#include "CFoundCamera.h"

#include <chrono>
#include <functional>
#include <stdexcept>

#include <QSharedPointer>
#include <QString>

namespace CameraPool {

class CDeviceReleaser;

/// A camera could not be opened. The message is one line that names the camera and the remedy.
class COpenException : public std::runtime_error
{
public:
    enum Reason { InUse, Other };

    COpenException(Reason reason, const QString &message)
        : std::runtime_error(message.toStdString())
        , m_reason(reason)
    {}

    Reason reason() const
    {
        return m_reason;
    }

private:
    Reason m_reason;
};

/// Opens the camera that was found as \a found, takes control of it and switches the checks on that
/// refuse values out of range and writes to what is read-only. Takes some milliseconds. A camera
/// that stops answering meanwhile is given up, which is noticed after half a second, or two and a
/// half where the network does not say that nobody listens; so is one that answers but is not open
/// after \a limit. \a releaser then waits for what Aravis goes on trying. Callable in any thread.
/// @param onLost see `CDevice`.
/// @throws COpenException
QSharedPointer<CDevice> openDevice(const CFoundCamera &found,
                                   const Core::CameraPoolComponents::CameraInfoPtr &info,
                                   std::function<void()> onLost, CDeviceReleaser &releaser,
                                   std::chrono::milliseconds limit);

} // namespace CameraPool
