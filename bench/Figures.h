#pragma once

#include <QString>

#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <functional>

// A figure is a benchmark "<name>/is" beside "<name>/floor", which is the least that any program
// would have to do for the same end, on the same files in the same process. table.py makes ratios of
// their medians.

namespace pelorin::bench {

using Clock = std::chrono::steady_clock;

inline double SecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// What this process itself has worked. Other programs make it wait, so this is steadier.
inline double CpuSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Each iteration takes the time of `work` alone: not that of `prepare`, nor that of the end of what
/// `work` gives.
template <class Prepare, class Work>
void TimeEach(benchmark::State& state, Prepare prepare, Work work)
{
    double worked = 0;
    for ([[maybe_unused]] auto unused : state) {
        prepare();
        const double before = CpuSeconds();
        const Clock::time_point start = Clock::now();
        auto result = work();
        state.SetIterationTime(SecondsSince(start));
        worked += CpuSeconds() - before;
        benchmark::DoNotOptimize(result);
    }
    state.counters["work_ms"] =
        benchmark::Counter(1000 * worked, benchmark::Counter::kAvgIterations);
}

template <class Work>
void TimeEach(benchmark::State& state, Work work)
{
    TimeEach(
        state, [] {}, std::move(work));
}

/// A benchmark that counts for some milliseconds an iteration.
inline benchmark::internal::Benchmark* AddFigure(
    const char* name, std::function<void(benchmark::State&)> run)
{
    return benchmark::RegisterBenchmark(name, std::move(run))
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(11);
}

} // namespace pelorin::bench
