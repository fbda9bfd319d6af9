// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CGrabFigures.h"

namespace CameraPool {

CGrabFigures::CGrabFigures(Time begin)
{
    m_all.since = begin;
    m_interval.since = begin;
}

void CGrabFigures::addImage(quint64 bytes)
{
    for (Counts *counts : {&m_all, &m_interval}) {
        ++counts->images;
        counts->bytes += bytes;
    }
}

void CGrabFigures::addFailure()
{
    ++m_failed;
}

bool CGrabFigures::isDue(Time now) const
{
    return now - m_interval.since >= Interval;
}

CGrabFigures::Figures CGrabFigures::take(Time now)
{
    const Figures result = figures(m_interval, now);
    m_interval = Counts();
    m_interval.since = now;
    return result;
}

CGrabFigures::Figures CGrabFigures::total(Time now) const
{
    return figures(m_all, now);
}

CGrabFigures::Figures CGrabFigures::figures(const Counts &counts, Time now) const
{
    Figures result;
    result.imagesGrabbed = m_all.images;
    result.imagesFailed = m_failed;
    const double seconds = std::chrono::duration<double>(now - counts.since).count();
    if (seconds > 0.0) {
        result.fps = counts.images / seconds;
        result.bps = quint64(double(counts.bytes) / seconds);
    }
    return result;
}

} // namespace CameraPool
