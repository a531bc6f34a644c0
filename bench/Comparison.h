#pragma once

#include <functional>
#include <string>
#include <vector>

/** What one side of a comparison costs for a document of `count` items: seconds or bytes. */
using Measure = std::function<double(int count)>;

enum class Unit { Seconds, Bytes };

/** One operation of the editor beside its floor: the least that Qt lets it cost. */
struct Comparison
{
    std::string operation;
    Measure ours;
    Measure floor;
    std::vector<int> counts = {1000, 10000, 100000};
    Unit unit = Unit::Seconds;
};

/** Has both sides measured, in turn, when the benchmarks run. */
void compare(const Comparison &comparison);

/** The operations that are compared, in the order in which they were given. */
const std::vector<std::string> &comparedOperations();

/** From now on the comparisons are made with this number of items only. */
void compareOnlyWith(int count);

/**
 * The CPU time that `work` takes in the calling thread: neither other programs on the machine
 * nor the host's thread count. Seconds. A profiler is told to look at this function only.
 */
double cpuSeconds(const std::function<void()> &work);

/** The same for one of `times` runs of a `work` that is too short to be timed alone. */
double cpuSecondsOfOne(int times, const std::function<void()> &work);

/** Under these names the reporter finds what a benchmark measured. */
namespace Measured
{
inline constexpr const char *value = "measured";
inline constexpr const char *ours = "ours";
inline constexpr const char *floor = "floor";
inline constexpr const char *bytes = "bytes";
} // namespace Measured
