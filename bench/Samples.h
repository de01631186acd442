// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

#include <time.h>

namespace lorva::bench {

/// Processor microseconds of this thread, per sample; told as median, 95th percentile and worst.
class Samples
{
public:
    template <class Work>
    void time(Work work)
    {
        const double start = threadMicroseconds();
        work();
        m_microseconds.push_back(threadMicroseconds() - start);
    }

    void report(benchmark::State &state)
    {
        std::sort(m_microseconds.begin(), m_microseconds.end());
        state.counters["median_us"] = at(0.5);
        state.counters["p95_us"] = at(0.95);
        state.counters["worst_us"] = at(1);
    }

private:
    static double threadMicroseconds()
    {
        timespec now{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return double(now.tv_sec) * 1e6 + double(now.tv_nsec) / 1e3;
    }
    double at(double share) const
    {
        return m_microseconds.empty() ? 0
                                      : m_microseconds[size_t(share * (m_microseconds.size() - 1))];
    }

    std::vector<double> m_microseconds;
};

} // namespace lorva::bench
