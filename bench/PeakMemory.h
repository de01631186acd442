// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>

#include <malloc.h>

namespace lorva::bench {

/// How much resident memory a benchmark adds at its highest point, as the counter "peak_mb"; what
/// earlier benchmarks of the process left behind does not count.
class PeakMemory
{
public:
    PeakMemory()
    {
        ::malloc_trim(0);
        // The kernel's way to start a new high-water mark (proc(5), clear_refs).
        if (std::FILE *const file = std::fopen("/proc/self/clear_refs", "w")) {
            std::fputs("5", file);
            std::fclose(file);
        }
        m_before = statusKilobytes("VmRSS: %ld");
    }

    void report(benchmark::State &state) const
    {
        state.counters["peak_mb"] = double(statusKilobytes("VmHWM: %ld") - m_before) / 1024;
    }

private:
    static long statusKilobytes(const char *format)
    {
        long value = 0;
        char line[256];
        if (std::FILE *const file = std::fopen("/proc/self/status", "r")) {
            while (std::fgets(line, sizeof line, file) && std::sscanf(line, format, &value) != 1)
                continue;
            std::fclose(file);
        }
        return value;
    }

    long m_before = 0;
};

} // namespace lorva::bench
