// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGrab.h"

#include "CCameraStatus.h"
#include "CDevice.h"
#include "GrabErrors.h"
#include "Logging.h"

#include <ParameterCollection/CParameterException.h>

#include <utility>

namespace CameraPool {
namespace {

using namespace std::chrono_literals;

// How soon a stop or a loss is noticed when no image arrives.
constexpr auto LookInterval = 50ms;

// How long the stream must be quiet after the stop, and how long at most that is waited for.
// Aravis' simulated camera acts on a stop within 100 ms and would take a start before that for the
// old one.
constexpr auto LastImagePatience = 50ms;
constexpr auto LastImageLimit = 1000ms;

std::chrono::steady_clock::time_point now()
{
    return std::chrono::steady_clock::now();
}

// What is told to plug-ins, which may be slow: a queue of these stays small.
Nerix::CGrabResultPtr withoutPixels(const Nerix::CGrabResultPtr &result)
{
    if (!result->GrabSucceeded()) {
        return result;
    }
    const Nerix::CImage &image = result->image();
    return std::make_shared<Nerix::CGrabResultData>(
        Nerix::CImage{image.width, image.height, image.pixelFormat, {}});
}

} // namespace

CGrab::CGrab(QSharedPointer<CDevice> device, GrabMode mode, Listeners listeners)
    : m_device(std::move(device))
    , m_info(m_device->info())
    , m_mode(mode)
    , m_listeners(std::move(listeners))
    , m_thread([this] { run(); })
{}

CGrab::~CGrab()
{
    stop();
    m_thread.join();
}

void CGrab::run()
{
    QString reason;
    try {
        grab();
    } catch (const ParameterCollection::CParameterException &exception) {
        reason = exception.message();
    }
    m_hasEnded = true;
    m_listeners.onEnded(reason);
}

// The counters are noted before the end is told, because who hears of it reads them.
void CGrab::grab()
{
    CStream stream(m_device, m_mode);
    CGrabFigures figures(now());
    Q_EMIT m_listeners.status->cameraGrabStarted(m_info);
    receive(&stream, &figures);
    stream.stop();
    m_device->noteCounters(drain(&stream, &figures));
    tellFigures(figures.total(now()));
    m_hasEnded = true;
    m_listeners.onStopping();
    Q_EMIT m_listeners.status->cameraGrabStopped(m_info);
}

void CGrab::receive(CStream *stream, CGrabFigures *figures)
{
    const bool hasDeadline = m_mode == GrabSingle && stream->singlePatience() > 0ms;
    const auto deadline = now() + stream->singlePatience();
    while (!isOver()) {
        const Nerix::CGrabResultPtr result = stream->next(LookInterval);
        if (result) {
            tell(result, figures);
        }
        if (result && m_mode == GrabSingle) {
            return;
        }
        if (hasDeadline && now() > deadline) {
            const CGrabError &error = noImageError();
            tell(std::make_shared<Nerix::CGrabResultData>(error.code, error.text), figures);
            return;
        }
        if (figures->isDue(now())) {
            m_device->noteCounters(stream->counters());
            tellFigures(figures->take(now()));
        }
    }
}

// The camera may send the image to its end that it had begun when it was told to stop. That image
// counts; of a single grab, a camera that does not know the mode may have begun one too many. The
// stream counts an image before it hands it out, so the counters that agree with what was told are
// those from before the wait in which none came.
CStreamCounters CGrab::drain(CStream *stream, CGrabFigures *figures)
{
    CStreamCounters counters = stream->counters();
    const auto deadline = now() + LastImageLimit;
    while (m_device->isOpen() && now() < deadline) {
        const Nerix::CGrabResultPtr result = stream->next(LastImagePatience);
        if (!result) {
            break;
        }
        if (m_mode == GrabContinuous) {
            tell(result, figures);
        }
        counters = stream->counters();
    }
    return counters;
}

bool CGrab::isOver() const
{
    return *m_stopFlag || !m_device->isOpen();
}

void CGrab::tell(const Nerix::CGrabResultPtr &result, CGrabFigures *figures)
{
    if (result->GrabSucceeded()) {
        figures->addImage(result->image().data.size());
    } else {
        figures->addFailure();
    }
    Q_EMIT m_listeners.images->resultArrived(m_info, result);
    Q_EMIT m_listeners.status->cameraImageGrabbed(m_info, withoutPixels(result));
}

void CGrab::tellFigures(const CGrabFigures::Figures &figures)
{
    Q_EMIT m_listeners.status->cameraStatisticUpdated(m_info, figures.imagesGrabbed,
                                                      figures.imagesFailed, figures.fps,
                                                      figures.bps, CCompressionStatistic());
}

} // namespace CameraPool
