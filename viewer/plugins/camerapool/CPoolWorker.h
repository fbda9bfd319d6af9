// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CBackgroundSearch.h"
#include "CCameraTable.h"
#include "CDeviceReleaser.h"
#include "CGrab.h"
#include "COpenings.h"
#include "CPoolTiming.h"
#include "ICameraControlService.h"
#include "ICameraSearch.h"

#include <memory>

#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QSharedPointer>
#include <QTimer>

namespace CameraPool {

class CCameraControl;
class CCameraEnumeration;
class CCameraStatus;
class CDevice;
class CDeviceStore;

/// The work of the camera pool: searches, opens, closes and tells. Lives in the pool's thread,
/// where every operation is called; nothing else does, so that requests need no lock. A search is
/// made in a thread of its own, and what it found is taken in between two requests.
class CPoolWorker : public QObject
{
    Q_OBJECT

public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    /// The objects that the worker tells and that outlive it.
    struct Outlets
    {
        CCameraStatus *status;
        CImageNews *images;
        CCameraEnumeration *enumeration;
        CCameraControl *control;
        CDeviceStore *devices;
    };

    CPoolWorker(const Outlets &outlets, std::unique_ptr<ICameraSearch> search,
                const CPoolTiming &timing);
    ~CPoolWorker() override;

    /// Begins to search after the delay for the first search, and goes on until `closeAll`.
    void beginSearching();

    void open(const CameraInfoPtr &camera);
    void close(const CameraInfoPtr &camera);
    void startGrab(const CameraInfoPtr &camera, GrabMode mode);
    void stopGrab(const CameraInfoPtr &camera);
    void closeAll();

    /// Waits for the end of a search that is under way, a second or two. At the end of the thread.
    void waitForSearch();

private:
    void searchOnce();
    void onFound(QVector<CFoundCamera> found);
    void dropOutdated(QVector<CFoundCamera> *found) const;
    void waitForRelease(const CameraInfoPtr &camera);
    void failWaiting(const QString &identity, const QString &reason);
    void report(const CCameraTable::Changes &changes);
    void reportEnumeration();
    void beginOpening(const CFoundCamera &found, const CameraInfoPtr &camera);
    void onOpeningEnded(const COpenings::Result &result);
    bool isOpening(const CameraInfoPtr &camera) const;
    void giveUpOpening(const CameraInfoPtr &camera, const QString &reason);
    QSet<QString> identitiesInUse() const;
    void fail(const CameraInfoPtr &camera, const QString &message);
    void onDeviceLost(const QString &identity, quint64 session);
    void onGrabEnded(const CameraInfoPtr &camera, const QString &reason);
    void failGrab(const CameraInfoPtr &camera, const QString &message);
    void onDeviceReleased(const QString &identity);
    void shut(const QString &identity);
    void publish();

    const Outlets m_outlets;
    const CPoolTiming m_timing;
    const CPostBox m_postBox;
    CBackgroundSearch m_search;
    bool m_isSearching = false;
    QSet<QString> m_lostMeanwhile; // identities, since the search began
    QSet<QString> m_usedMeanwhile; // opened, closed or refused, since the search began
    QTimer m_searchTimer;
    CCameraTable m_table;
    QMap<QString, QSharedPointer<CDevice>> m_open; // by identity
    QHash<QString, quint64> m_sessions;            // by identity: which opening it is
    quint64 m_lastSession = 0;
    QMap<QString, QSharedPointer<CGrab>> m_grabs; // by identity; some may have ended
    // To be opened when their last device is released, by identity, with the number of the request.
    QHash<QString, QPair<CameraInfoPtr, quint64>> m_waiting;
    const std::shared_ptr<CDeviceReleaser> m_releaser;
    COpenings m_openings;
    // Grabs that were asked for before their camera was open, by identity.
    QHash<QString, QList<std::function<void()>>> m_afterOpening;
    QSet<QString> m_reported; // identities at the last enumerationChanged
    bool m_hasReported = false;
    bool m_isEnding = false;
};

} // namespace CameraPool
