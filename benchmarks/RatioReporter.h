#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// The maximum time of a benchmark, as a multiple of its baseline in the same run. For a bound per
/// item, the times are first divided by the number after the last "/" of the names.
struct Bound
{
    std::string subject;
    std::string baseline;
    double most;
    bool perItem = false;
};

/// Stores the shortest time of the repetitions of each benchmark, because other programs disturb it
/// least, and compares these times with the bounds.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Prints a line for each bound. Returns true if all bounds are met.
    bool check(const std::vector<Bound>& bounds) const;

private:
    double seconds(const std::string& name, bool perItem) const;

    std::map<std::string, double> m_seconds;
};

/// Runs all registered benchmarks and returns the exit code. With `--smoke`, each runs once and the
/// bounds are not checked, so that a test can verify that the benchmarks work.
int runBenchmarks(int argc, char* argv[], const std::vector<Bound>& bounds);
