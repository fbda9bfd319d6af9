// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CBusyMeter.h"

#include "CViewerProcess.h"

#include <algorithm>

#include <QFile>

namespace {

constexpr int LookIntervalMs = 20;

// The share of an interval in which a thread that does not pause has something to do.
constexpr double Always = 0.9;

} // namespace

CBusyMeter::CBusyMeter(const CViewerProcess &viewer)
    : m_viewer(viewer)
{
    connect(&m_timer, &QTimer::timeout, this, &CBusyMeter::look);
    m_timer.start(LookIntervalMs);
    m_interval.start();
}

void CBusyMeter::look()
{
    const QString process = QString::number(m_viewer.processId());
    QFile file(QString("/proc/%1/task/%1/schedstat").arg(process));
    const QList<QByteArray> figures =
        file.open(QIODevice::ReadOnly) ? file.readAll().split(' ') : QList<QByteArray>();
    if (figures.size() < 2) {
        return;
    }
    const double processor = figures.at(0).toDouble() / 1e6;
    const double waiting = figures.at(1).toDouble() / 1e6;
    const double used = m_processor > 0.0 ? processor - m_processor : 0.0;
    const double wanted = used + waiting - m_waiting;
    const bool isBusy = wanted > Always * double(m_interval.restart());
    m_stretch = isBusy ? m_stretch + used : 0.0;
    m_longest = std::max({m_longest, m_stretch, used});
    m_processor = processor;
    m_waiting = waiting;
}
