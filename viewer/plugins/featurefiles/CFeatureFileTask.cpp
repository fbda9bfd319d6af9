// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CFeatureFileTask.h"

#include "plugins/featurefiles/CFeatureFile.h"

#include <exception>
#include <utility>

namespace FeatureFiles {

using ParameterCollection::IParameterCollection;

CFeatureFileTask::CFeatureFileTask(
    QSharedPointer<ParameterCollectionPool::IParameterService> service)
    : m_service(std::move(service))
    , m_thread(QStringLiteral("feature files"))
{}

// What runs ends with the next feature.
CFeatureFileTask::~CFeatureFileTask()
{
    cancel();
}

void CFeatureFileTask::save(const CameraPtr &camera, const QString &fileName)
{
    begin(camera, [this, fileName](IParameterCollection &parameters) -> Report {
        CFeatureFile(fileName).save(parameters, [this] { return !m_isCancelled; });
        return m_isCancelled ? Report([this] { Q_EMIT cancelled(); })
                             : Report([this] { Q_EMIT saved(); });
    });
}

void CFeatureFileTask::load(const CameraPtr &camera, const QString &fileName)
{
    begin(camera, [this, fileName](IParameterCollection &parameters) -> Report {
        const CLoadReport report = CFeatureFile(fileName).load(
            parameters, [this](int done, int total) { return isStillWanted(done, total); });
        return [this, report] { Q_EMIT loaded(report); };
    });
}

void CFeatureFileTask::cancel()
{
    m_isCancelled = true;
}

void CFeatureFileTask::begin(const CameraPtr &camera, Work work)
{
    if (m_isRunning) {
        return;
    }
    m_isRunning = true;
    m_isCancelled = false;
    m_permille = 0;
    Q_EMIT runningChanged(true);
    m_thread.post([this, service = m_service, camera, work = std::move(work)] {
        Report report;
        try {
            const auto parameters = service->parameterCollection(camera);
            report = parameters ? work(*parameters) : [this, name = camera->displayName()] {
                Q_EMIT failed(tr("%1 has no features now: open it first").arg(name));
            };
        } catch (const std::exception &exception) {
            report = [this, reason = QString::fromUtf8(exception.what())] {
                Q_EMIT failed(reason);
            };
        }
        QMetaObject::invokeMethod(
            this, [this, report] { end(report); }, Qt::QueuedConnection);
    });
}

void CFeatureFileTask::end(const Report &report)
{
    m_isRunning = false;
    Q_EMIT runningChanged(false);
    report();
}

// In the other thread. A window cannot show more steps than these.
bool CFeatureFileTask::isStillWanted(int done, int total)
{
    const int permille = int(qint64(done) * 1000 / total);
    if (permille != m_permille.exchange(permille)) {
        QMetaObject::invokeMethod(
            this, [this, done, total] { Q_EMIT progressed(done, total); }, Qt::QueuedConnection);
    }
    return !m_isCancelled;
}

} // namespace FeatureFiles
