#pragma once

#include <functional>
#include <string>
#include <vector>

/** Measures one side of a comparison for a document of `count` items, in seconds or bytes. */
using Measure = std::function<double(int count)>;

enum class Unit { Seconds, Bytes };

/** One operation of the editor and its floor: the minimum cost with Qt. */
struct Comparison
{
    std::string operation;
    Measure ours;
    Measure floor;
    std::vector<int> counts = {1000, 10000, 100000};
    Unit unit = Unit::Seconds;
};

/** Registers a comparison; both sides are measured alternately when the benchmarks run. */
void compare(const Comparison &comparison);

/** The compared operations in the order of their registration. */
const std::vector<std::string> &comparedOperations();

/** Restricts all later comparisons to this number of items. */
void compareOnlyWith(int count);

/**
 * The CPU time of `work` in seconds, only in the calling thread: other programs and the host's
 * thread are not included. Profilers can be restricted to this function.
 */
double cpuSeconds(const std::function<void()> &work);

/** The average of `times` runs, for `work` that is too short to be timed alone. */
double cpuSecondsOfOne(int times, const std::function<void()> &work);

/** The names under which the reporter finds a benchmark's results. */
namespace Measured
{
inline constexpr const char *value = "measured";
inline constexpr const char *ours = "ours";
inline constexpr const char *floor = "floor";
inline constexpr const char *bytes = "bytes";
} // namespace Measured
