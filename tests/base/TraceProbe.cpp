// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// trace_probe WHAT: goes through some stages, as TraceTest wants to see them in the trace.
#include "base/Trace.h"

#include <csignal>
#include <cstdio>
#include <string_view>
#include <thread>
#include <vector>

#include <pthread.h>

namespace {

using namespace lorva;

void nest()
{
    const TraceStage outer("outer");
    {
        const TraceStage inner("a \"quoted\" \\ name\n");
        traceMoment("moment");
    }
    TraceStage early("early");
    early.end();
    traceMoment("after early");
}

void useThreads()
{
    constexpr int kThreads = 4;
    constexpr int kStages = 250;
    std::vector<std::jthread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back([] {
            ::pthread_setname_np(::pthread_self(), "worker");
            for (int stage = 0; stage < kStages; ++stage)
                const TraceStage each("work");
        });
}

void dieInAStage()
{
    const TraceStage stage("cut short");
    traceMoment("last words");
    std::raise(SIGKILL);
}

} // namespace

int main(int count, char **arguments)
{
    const std::string_view what = count > 1 ? arguments[1] : "";
    if (what == "threads")
        useThreads();
    else if (what == "die")
        dieInAStage();
    else
        nest();
    std::puts(isTracing() ? "on" : "off");
    return 0;
}
