// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/camerapool/CCameraPool.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <Nerix/CGrabResultData.h>

#include <QHash>
#include <QList>
#include <QObject>
#include <QStringList>

// A camera pool for a test, with short times, which looks for cameras at 127.0.0.1 to 127.0.0.5.
// What it tells is written down in the test's thread, in the order of the signals: one word for the
// signal, one for the camera's serial number.
class CPoolRig : public QObject
{
    Q_OBJECT

public:
    using CameraInfoPtr = Core::CameraPoolComponents::CameraInfoPtr;

    explicit CPoolRig(CameraPool::CPoolTiming timing = shortTiming());
    CPoolRig(std::unique_ptr<CameraPool::ICameraSearch> search, CameraPool::CPoolTiming timing);
    ~CPoolRig() override;

    static CameraPool::CPoolTiming shortTiming();

    CameraPool::CCameraPool &pool()
    {
        return *m_pool;
    }
    const QStringList &log() const
    {
        return m_log;
    }
    void clearLog()
    {
        m_log.clear();
    }

    // What the grabs told beside the log, which holds "grabStarted", "grabStopped" and
    // "grabFailed".
    struct Grabbed
    {
        QList<Nerix::CGrabResultPtr> images;
        QList<Nerix::CGrabResultPtr> failures;
        int figureCount = 0; // how often the figures were told, and the last ones
        int imagesGrabbed = 0;
        int imagesFailed = 0;
        double fps = 0.0;
        quint64 bps = 0;
    };
    const Grabbed &grabbed(const QString &serial)
    {
        return m_grabbed[serial];
    }
    void clearGrabbed()
    {
        m_grabbed.clear();
    }
    bool waitForImages(const QString &serial, int count);
    bool waitForFailures(const QString &serial, int count);

    QString lastFailure() const
    {
        return m_lastFailure;
    }

    // Each waits for the end, running the event loop, and tells whether it came within 30 s.
    bool search();                                // the first search
    bool waitFor(const QString &line);            // until the log holds the line
    bool waitFor(const QString &line, int count); // so many times
    bool open(const CameraInfoPtr &camera);       // false also when it failed
    bool close(const CameraInfoPtr &camera);
    bool closeAll();

    // The camera with this serial number among those that are there; null if it is not.
    CameraInfoPtr camera(const QString &serial) const;

private:
    void listenToGrabs();
    void note(const char *signal, const CameraInfoPtr &camera);

    std::unique_ptr<CameraPool::CCameraPool> m_pool;
    QStringList m_log;
    QHash<QString, Grabbed> m_grabbed;
    QString m_lastFailure;
};
