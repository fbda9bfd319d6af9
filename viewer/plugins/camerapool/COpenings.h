// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CPostBox.h"
#include "DeviceOpener.h"

#include <chrono>
#include <functional>
#include <memory>

#include <QHash>
#include <QSet>
#include <QSharedPointer>

namespace CameraPool {

class CDeviceReleaser;

/// The openings that are under way, each in a thread of its own: a camera that does not come to its
/// end holds up no other. Lives and is used in the pool's thread.
class COpenings
{
public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    /// How an opening ended.
    struct Result
    {
        CameraInfoPtr camera;
        QSharedPointer<CDevice> device; ///< null if it failed
        QString failure;                ///< one line that names the camera and the remedy
        bool isInUse = false;           ///< failed because another program controls the camera
    };

    struct Listeners
    {
        std::function<void(const Result &result)> onEnded;

        /// A camera can be opened again, whose opening was given up before.
        std::function<void(const QString &identity)> onGivenBack;
    };

    /// Both are called in the thread of the owner of \a postBox.
    COpenings(CPostBox postBox, std::shared_ptr<CDeviceReleaser> releaser,
              std::chrono::milliseconds limit, Listeners listeners);

    /// Begins to open \a camera, which was found as \a found and is not under way. Ends with
    /// `onEnded` at the latest after the limit, unless it is given up.
    void begin(const CFoundCamera &found, const CameraInfoPtr &camera,
               std::function<void()> onLost);

    /// True from `begin` until the end, or until it is given up.
    bool isWanted(const QString &identity) const
    {
        return m_wanted.contains(identity);
    }

    /// True as long as a thread may be at it, also if it was given up.
    bool isUnderWay(const QString &identity) const
    {
        return m_underWay.contains(identity);
    }

    /// Wants it no more: if it still succeeds, the camera is closed again.
    void giveUp(const QString &identity)
    {
        m_wanted.remove(identity);
    }

    /// Those that are wanted.
    QList<CameraInfoPtr> cameras() const
    {
        return m_wanted.values();
    }

private:
    void end(const Result &result);

    const CPostBox m_postBox;
    const std::shared_ptr<CDeviceReleaser> m_releaser;
    const std::chrono::milliseconds m_limit;
    const Listeners m_listeners;
    QHash<QString, CameraInfoPtr> m_wanted; // by identity
    QSet<QString> m_underWay;               // identities
};

} // namespace CameraPool
