// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace rui::benchmarks {

// The times of many runs of one thing, in microseconds.
class Quantiles
{
public:
    template <typename Action>
    void measure(Action action)
    {
        const auto start = std::chrono::steady_clock::now();
        action();
        const std::chrono::duration<double, std::micro> time =
            std::chrono::steady_clock::now() - start;
        m_times.push_back(time.count());
    }

    // share: 0.5 is the median.
    double at(double share)
    {
        const auto index =
            static_cast<std::ptrdiff_t>(share * static_cast<double>(m_times.size() - 1));
        std::nth_element(m_times.begin(), m_times.begin() + index, m_times.end());
        return m_times[static_cast<std::size_t>(index)];
    }

private:
    std::vector<double> m_times;
};

} // namespace rui::benchmarks
