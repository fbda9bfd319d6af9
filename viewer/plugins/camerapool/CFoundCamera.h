// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace CameraPool {

/// What one search tells about one camera. A value.
struct CFoundCamera
{
    QString vendor;
    QString model;
    QString serial;   ///< empty for a camera that has none
    QString mac;      ///< twelve lower-case hexadecimal digits; empty for a camera that is not GigE
    QString userName; ///< the name that the user gave it; empty for none, or where unknown
    QString openId;   ///< by which the transport opens it: an IP address, else Aravis' own id
    quint32 hostAddress = 0; ///< IPv4, of this computer, as the camera sees it; 0 where unknown
    QString distinction;     ///< what tells it from another device that says that it is this camera
    bool isAddressShared = false; ///< another device answers at its address too
    bool isGigE = true;
    bool isControlled = false;   ///< some program controls it, this one included
    bool isNameKnown = false;    ///< false: the camera did not tell \c userName this time
    bool isControlKnown = false; ///< false: it did not tell \c isControlled

    /// What the camera says that it is, the same after unplugging and renaming:
    /// "vendor-model-serial". The serial number is optional in GigE Vision; the MAC address stands
    /// for one that is missing.
    QString plainIdentity() const
    {
        return QStringLiteral("%1-%2-%3").arg(vendor, model, serial.isEmpty() ? mac : serial);
    }

    /// Unique: the plain one, and behind it what tells it from an earlier device of the same one.
    QString identity() const
    {
        return distinction.isEmpty() ? plainIdentity()
                                     : plainIdentity() + QLatin1Char('-') + distinction;
    }

    /// What the user reads.
    QString displayName() const
    {
        return userName.isEmpty() ? identity() : userName;
    }
};

} // namespace CameraPool
