#include "Comparison.h"

#include <benchmark/benchmark.h>

#include <ctime>

namespace
{
int onlyCount = 0;
std::vector<std::string> operations;

double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

void registerSide(const Comparison &comparison, const char *side, const Measure &measure)
{
    const std::string name = comparison.operation + "/" + side;
    const auto run = [measure, unit = comparison.unit](benchmark::State &state) {
        for (auto _ : state) {
            const double value = measure(static_cast<int>(state.range(0)));
            state.counters[Measured::value] = value;
            state.SetIterationTime(unit == Unit::Seconds ? value : 0.0);
        }
        if (unit == Unit::Bytes)
            state.SetLabel(Measured::bytes);
    };
    benchmark::internal::Benchmark *registered = benchmark::RegisterBenchmark(name.c_str(), run);
    registered->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
    for (const int count : onlyCount > 0 ? std::vector<int>{onlyCount} : comparison.counts)
        registered->Arg(count);
}
} // namespace

void compare(const Comparison &comparison)
{
    operations.push_back(comparison.operation);
    registerSide(comparison, Measured::ours, comparison.ours);
    registerSide(comparison, Measured::floor, comparison.floor);
}

const std::vector<std::string> &comparedOperations()
{
    return operations;
}

void compareOnlyWith(int count)
{
    onlyCount = count;
}

[[gnu::noinline]] double cpuSeconds(const std::function<void()> &work)
{
    const double start = threadSeconds();
    work();
    return threadSeconds() - start;
}

double cpuSecondsOfOne(int times, const std::function<void()> &work)
{
    const auto workOften = [&] {
        for (int i = 0; i < times; ++i)
            work();
    };
    return cpuSeconds(workOften) / times;
}
