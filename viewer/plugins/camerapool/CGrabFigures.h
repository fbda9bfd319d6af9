// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

#include <QtGlobal>

namespace CameraPool {

/// Counts the images of one grab and works out the figures of the status bar. The time is handed
/// in. Used in one thread.
class CGrabFigures
{
public:
    using Time = std::chrono::steady_clock::time_point;

    /// How often the figures are told.
    static constexpr std::chrono::seconds Interval{1};

    /// What is told.
    struct Figures
    {
        int imagesGrabbed = 0; ///< since the grab began
        int imagesFailed = 0;  ///< since the grab began
        double fps = 0.0;      ///< whole images per second
        quint64 bps = 0;       ///< bytes of whole images per second
    };

    explicit CGrabFigures(Time begin);

    void addImage(quint64 bytes);
    void addFailure();

    /// True once an interval is over.
    bool isDue(Time now) const;

    /// The figures with the rates since the call before, and begins a new interval.
    Figures take(Time now);

    /// The figures with the rates of the whole grab, for its end.
    Figures total(Time now) const;

private:
    struct Counts
    {
        Time since;
        int images = 0;
        quint64 bytes = 0;
    };

    Figures figures(const Counts &counts, Time now) const;

    Counts m_all;
    Counts m_interval;
    int m_failed = 0;
};

} // namespace CameraPool
