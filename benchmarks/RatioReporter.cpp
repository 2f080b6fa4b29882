#include "RatioReporter.h"

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>

#include <malloc.h>

namespace {
constexpr int Pairs = 9;

/// Stores the last run instead of printing it.
class LastRun : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& each : runs) {
            if (each.error_occurred)
                fail(each.benchmark_name(), each.error_message);
            run = each;
        }
    }

    [[noreturn]] static void fail(const std::string& name, const std::string& reason)
    {
        std::fprintf(stderr, "%s: %s\n", name.c_str(), reason.c_str());
        std::exit(EXIT_FAILURE);
    }

    Run run;
};

double seconds(const benchmark::BenchmarkReporter::Run& run)
{
    const bool isOwnTime = run.benchmark_name().find("_time") != std::string::npos;
    const double all = isOwnTime ? run.real_accumulated_time : run.cpu_accumulated_time;
    return all / double(run.iterations);
}

/// Runs the benchmark and returns the measured value in milliseconds or megabytes.
double measured(const std::string& name, Figure figure)
{
    LastRun last;
    if (benchmark::RunSpecifiedBenchmarks(&last, nullptr, '^' + name + '$') != 1)
        LastRun::fail(name, "there is no such benchmark");
    switch (figure) {
    case Figure::Memory: return last.run.counters.at("bytes").value / 1e6;
    case Figure::TimePerItem: return 1000 * seconds(last.run) / std::stod(last.run.run_name.args);
    case Figure::Time: break;
    }
    return 1000 * seconds(last.run);
}

/// The sorted results of all pairs.
struct Results
{
    void sort()
    {
        std::sort(values.begin(), values.end());
        std::sort(ratios.begin(), ratios.end());
    }

    std::vector<double> values;
    std::vector<double> ratios;
};

Results pairsOf(const Bound& bound)
{
    Results results;
    for (int i = 0; i < Pairs; ++i) {
        double peer = 1;
        const bool isPeerFirst = i % 2; // so that neither always has a warm cache
        if (isPeerFirst && !bound.peer.empty())
            peer = measured(bound.peer, bound.figure);
        results.values.push_back(measured(bound.subject, bound.figure));
        if (!isPeerFirst && !bound.peer.empty())
            peer = measured(bound.peer, bound.figure);
        results.ratios.push_back(results.values.back() / peer);
    }
    results.sort();
    return results;
}

/// Prints a line for the bound. Returns true if the bound is met.
bool check(const Bound& bound)
{
    const Results results = pairsOf(bound);
    const double median = results.ratios[Pairs / 2];
    const bool isMet = median <= bound.most;
    std::printf("%-4s %5.2f (%.2f to %.2f) of at most %.2f  %s: %.4g %s; %s%s%s\n",
                isMet ? "ok" : "OVER", median, results.ratios[Pairs / 4],
                results.ratios[Pairs - 1 - Pairs / 4], bound.most, bound.subject.c_str(),
                results.values[Pairs / 2], bound.figure == Figure::Memory ? "MB" : "ms",
                bound.peer.c_str(), bound.work.empty() ? "" : " ", bound.work.c_str());
    std::fflush(stdout);
    return isMet;
}

void initialize(const char* minTime)
{
    char program[] = "bench";
    std::string option = std::string("--benchmark_min_time=") + minTime;
    char* arguments[] = {program, option.data(), nullptr};
    int count = 2;
    benchmark::Initialize(&count, arguments);
}
} // namespace

int runBenchmarks(int argc, char* argv[], const std::vector<Bound>& bounds)
{
    // Freed memory is not returned to the system. Otherwise the sizes of earlier allocations would
    // determine whether a later iteration has to request memory from the system again.
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    const std::string argument = argc > 1 ? argv[1] : "";
    if (argument == "--smoke") {
        initialize("0");
        LastRun last;
        benchmark::RunSpecifiedBenchmarks(&last);
        return EXIT_SUCCESS;
    }
    initialize("0.1");
    bool areMet = true;
    for (const Bound& bound : bounds)
        if (bound.subject.find(argument) != std::string::npos)
            areMet = check(bound) && areMet;
    return areMet ? EXIT_SUCCESS : EXIT_FAILURE;
}
