#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// What a benchmark may take at most, as a multiple of its baseline in the same run. With items,
/// the times are divided by the number behind the last "/" of the names first.
struct Bound
{
    std::string subject;
    std::string baseline;
    double most;
    bool perItem = false;
};

/// Keeps the shortest time of each benchmark's repetitions, which is the one with the least of
/// other programs in it, and compares them with the bounds.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Prints a line for each bound; true if all are kept.
    bool check(const std::vector<Bound>& bounds) const;

private:
    double seconds(const std::string& name, bool perItem) const;

    std::map<std::string, double> m_seconds;
};

/// Runs all registered benchmarks. `--smoke` runs each of them once, without a verdict on times, so
/// that a test can see that they work. The result is the exit code.
int runBenchmarks(int argc, char* argv[], const std::vector<Bound>& bounds);
