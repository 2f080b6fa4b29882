#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

/// The figure of a benchmark that is compared. Time is processor time, because other programs
/// disturb it least; a benchmark registered with `UseRealTime` or `UseManualTime` gives that time.
enum class Figure {
    Time,        ///< of one iteration
    TimePerItem, ///< divided by the argument of the benchmark, its number of items
    Memory,      ///< the counter `bytes` of the benchmark
};

/// The maximum figure of a benchmark, as a multiple of the same figure of its peer.
struct Bound
{
    std::string subject;
    std::string peer; ///< If it is empty, `most` is in milliseconds or megabytes.
    double most;
    std::string work; ///< what the peer does, in one line
    Figure figure = Figure::Time;
};

/// Runs each subject and its peer alternately, prints the median of the ratios of the pairs with
/// their quartiles, and returns the exit code. With `--smoke`, each benchmark runs once and the
/// bounds are not checked, so that a test can verify that the benchmarks work. With another
/// argument, only bounds whose subject contains it are measured.
int runBenchmarks(int argc, char* argv[], const std::vector<Bound>& bounds);
