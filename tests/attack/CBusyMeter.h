// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class CViewerProcess;

// For how long the windows of a viewer that runs are busy without a pause: the processor time that
// the thread of the windows takes while it always has something to do. Unlike the time on a clock
// it does not grow when the computer is busy with something else. Works while the event loop runs.
class CBusyMeter : public QObject
{
    Q_OBJECT

public:
    explicit CBusyMeter(const CViewerProcess &viewer);

    double longestMs() const
    {
        return m_longest;
    }

private:
    void look();

    const CViewerProcess &m_viewer;
    QTimer m_timer;
    QElapsedTimer m_interval;
    double m_processor = 0.0; // ms so far, in the processor and waiting for it
    double m_waiting = 0.0;
    double m_stretch = 0.0;
    double m_longest = 0.0;
};
