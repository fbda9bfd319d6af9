// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <arv.h>

#include <array>
#include <optional>

#include <QtGlobal>

namespace CameraPool {

/// The figures of a stream that Aravis counts, under the names that the viewer gives them. A value.
class CStreamCounters
{
public:
    static constexpr int Count = 8;

    /// The name of a counter, for example "Statistic_Total_Buffer_Count".
    static const char *name(int index);

    /// What a stream of this kind of device will count, each counter at 0: so it is before the
    /// first grab.
    static CStreamCounters none(bool isGigE);

    /// What \a stream has counted since it was made. The thread that owns the stream calls this.
    static CStreamCounters of(ArvStream *stream);

    /// Empty for a figure that the transport does not count.
    std::optional<qint64> at(int index) const
    {
        return m_values.at(std::size_t(index));
    }

    bool operator==(const CStreamCounters &other) const
    {
        return m_values == other.m_values;
    }

private:
    std::array<std::optional<qint64>, Count> m_values;
};

} // namespace CameraPool
