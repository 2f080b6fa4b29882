#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

/// Specifies which value of a benchmark is measured and compared. Times are processor times,
/// because other programs affect them least; for a benchmark registered with `UseRealTime` or
/// `UseManualTime`, they are wall-clock or manual times.
enum class Figure {
    Time,        ///< time of one iteration
    TimePerItem, ///< time divided by the benchmark's argument, the number of items
    Memory,      ///< the counter `bytes` of the benchmark
};

/// The limit on the measured value of a benchmark, as a multiple of its peer's value.
struct Bound
{
    std::string subject;
    std::string peer; ///< if empty, `most` is in milliseconds or megabytes
    double most;
    std::string work; ///< one-line description of the peer's work
    Figure figure = Figure::Time;
};

/// Runs each subject alternately with its peer, prints the median and the quartiles of the ratios,
/// and returns the exit code. With `--smoke`, each benchmark runs once and the bounds are not
/// checked, so that a test can verify that the benchmarks work. Any other argument selects the
/// bounds whose subject contains it.
int runBenchmarks(int argc, char* argv[], const std::vector<Bound>& bounds);
