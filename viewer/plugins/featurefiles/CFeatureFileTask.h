// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featurefiles/CLoadReport.h"
#include "windows/CWorkThread.h"

#include <Core/CameraPoolComponents/ICameraInfo.h>
#include <ParameterCollection/IParameterCollection.h>
#include <ParameterCollectionPool/IParameterService.h>

#include <atomic>
#include <functional>
#include <memory>

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace FeatureFiles {

/// Saves and loads the features of a camera in a thread of its own, one file at a time. GUI thread;
/// every operation returns at once.
class CFeatureFileTask : public QObject
{
    Q_OBJECT

public:
    using CameraPtr = Core::CameraPoolComponents::CameraInfoPtr;

    explicit CFeatureFileTask(QSharedPointer<ParameterCollectionPool::IParameterService> service);
    ~CFeatureFileTask() override;

    /// Ends with `saved`, `failed` or `cancelled`. Ignored while another one runs.
    void save(const CameraPtr &camera, const QString &fileName);

    /// Ends with `loaded` or `failed`. Ignored while another one runs.
    void load(const CameraPtr &camera, const QString &fileName);

    /// Ends the one that runs as soon as the device has answered.
    void cancel();

    bool isRunning() const
    {
        return m_isRunning;
    }

Q_SIGNALS:
    void runningChanged(bool isRunning);

    /// While loading: so many of so many features have been tried.
    void progressed(int done, int total);

    void saved();
    void cancelled();
    void loaded(const FeatureFiles::CLoadReport &report);

    /// \a reason is one line.
    void failed(const QString &reason);

private:
    using Report = std::function<void()>;
    using Work = std::function<Report(ParameterCollection::IParameterCollection &)>;

    void begin(const CameraPtr &camera, Work work);
    void end(const Report &report);
    bool isStillWanted(int done, int total);

    const QSharedPointer<ParameterCollectionPool::IParameterService> m_service;
    bool m_isRunning = false;
    std::atomic<bool> m_isCancelled{false};
    std::atomic<int> m_permille{0};
    Windows::CWorkThread m_thread; // last, so that it ends first
};

} // namespace FeatureFiles
