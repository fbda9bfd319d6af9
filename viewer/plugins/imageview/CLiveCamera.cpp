// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/imageview/CLiveCamera.h"

#include "plugins/imageview/ImageConversion.h"

#include <chrono>
#include <utility>

#include <QPointer>
#include <QRunnable>
#include <QThreadPool>

namespace ImageView {

namespace {

// A little less than a frame of a usual screen, so that a camera with 60 images a second is shown
// whole.
constexpr std::chrono::milliseconds shortestPause(15);

ShownImage converted(const Nerix::CGrabResultPtr &result, const QDateTime &time)
{
    ShownImage image;
    image.result = result;
    image.time = time;
    image.problem = problemOf(result->image());
    image.screen = screenImage(result->image());
    return image;
}

} // namespace

CLiveCamera::CLiveCamera(CameraInfoPtr info, std::shared_ptr<CMailbox> mailbox,
                         QThreadPool &workers)
    : m_info(std::move(info))
    , m_name(m_info->displayName())
    , m_mailbox(std::move(mailbox))
    , m_workers(workers)
{
    m_pace.setSingleShot(true);
    m_pace.setTimerType(Qt::PreciseTimer);
    m_pace.setInterval(shortestPause);
    connect(&m_pace, &QTimer::timeout, this, &CLiveCamera::fetch);
}

CLiveCamera::~CLiveCamera() = default;

const CLiveCamera::CameraInfoPtr &CLiveCamera::info() const
{
    return m_info;
}

void CLiveCamera::setInfo(const CameraInfoPtr &info)
{
    m_info = info;
}

QString CLiveCamera::name() const
{
    return m_name;
}

void CLiveCamera::setName(const QString &name)
{
    if (name != m_name) {
        m_name = name;
        Q_EMIT nameChanged();
    }
}

const ShownImage &CLiveCamera::image() const
{
    return m_image;
}

bool CLiveCamera::isGrabbing() const
{
    return m_isGrabbing;
}

int CLiveCamera::failureCount() const
{
    return m_failureCount;
}

QString CLiveCamera::lastFailure() const
{
    return m_lastFailure;
}

void CLiveCamera::onNews()
{
    m_hasNews = true;
    fetch();
}

void CLiveCamera::onGrabStarted()
{
    m_isGrabbing = true;
    m_failureCount = 0;
    m_lastFailure.clear();
    Q_EMIT stateChanged();
}

void CLiveCamera::onGrabStopped()
{
    m_isGrabbing = false;
    Q_EMIT stateChanged();
}

void CLiveCamera::fetch()
{
    if (!m_hasNews || m_isConverting || m_pace.isActive()) {
        return;
    }
    m_hasNews = false;
    const CMailbox::News news = m_mailbox->take(m_info->identity());
    noteFailures(news.failures);
    if (news.image) {
        m_pace.start();
        convert(news.image, news.time);
    }
}

void CLiveCamera::noteFailures(const QVector<CMailbox::Failure> &failures)
{
    for (const CMailbox::Failure &failure : failures) {
        m_failureCount += failure.count;
        m_lastFailure = failure.text;
        Q_EMIT imagesFailed(failure.text, failure.count);
    }
    if (!failures.isEmpty()) {
        Q_EMIT stateChanged();
    }
}

void CLiveCamera::convert(const Nerix::CGrabResultPtr &result, const QDateTime &time)
{
    m_isConverting = true;
    m_workers.start([self = QPointer<CLiveCamera>(this), receiver = &m_workers, result, time] {
        const ShownImage image = converted(result, time);
        // The pool is sure to live on; the camera may be closed meanwhile.
        QMetaObject::invokeMethod(
            receiver,
            [self, image] {
                if (self) {
                    self->show(image);
                }
            },
            Qt::QueuedConnection);
    });
}

void CLiveCamera::show(const ShownImage &image)
{
    m_isConverting = false;
    m_image = image;
    Q_EMIT imageChanged();
    fetch();
}

} // namespace ImageView
