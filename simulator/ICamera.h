// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

namespace Simulator {

// What the commands can do to a camera.
class ICamera
{
public:
    virtual ~ICamera() = default;

    virtual bool isPluggedIn() const = 0;
    // Does nothing when plugged in. Throws std::runtime_error with a line for the user when the
    // address was taken meanwhile; the camera then stays unplugged.
    virtual void plugIn() = 0;
    // Does nothing when unplugged.
    virtual void unplug() = 0;
    // Ratio of the stream's packets that never arrive, 0 to 1. Holds until the next call, also
    // across unplugging.
    virtual void setLoss(double ratio) = 0;
};

} // namespace Simulator
