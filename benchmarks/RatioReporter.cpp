#include "RatioReporter.h"

#include <cstdio>
#include <cstring>

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred)
            continue;
        const double time = run.real_accumulated_time / double(run.iterations);
        const auto known = m_seconds.emplace(run.run_name.str(), time).first;
        known->second = std::min(known->second, time);
    }
}

double RatioReporter::seconds(const std::string& name, bool perItem) const
{
    const double time = m_seconds.at(name);
    return perItem ? time / std::stod(name.substr(name.rfind('/') + 1)) : time;
}

bool RatioReporter::check(const std::vector<Bound>& bounds) const
{
    bool kept = true;
    for (const Bound& bound : bounds) {
        const double time = seconds(bound.subject, bound.perItem);
        const double ratio = time / seconds(bound.baseline, bound.perItem);
        kept = kept && ratio <= bound.most;
        std::printf("%-4s %5.2f of at most %4.2f  %s to %s%s (%.3g ms, %.3g in a second)\n",
                    ratio <= bound.most ? "ok" : "SLOW", ratio, bound.most, bound.subject.c_str(),
                    bound.baseline.c_str(), bound.perItem ? ", each item" : "",
                    1000 * m_seconds.at(bound.subject), 1 / m_seconds.at(bound.subject));
    }
    return kept;
}

int runBenchmarks(int argc, char* argv[], const std::vector<Bound>& bounds)
{
    const bool smoke = argc > 1 && std::strcmp(argv[1], "--smoke") == 0;
    char program[] = "bench";
    char minTime[] = "--benchmark_min_time=0";
    char repetitions[] = "--benchmark_repetitions=5";
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    char* smokeArguments[] = {program, minTime, nullptr};
    char* timedArguments[] = {program, repetitions, interleaved, nullptr};
    int count = smoke ? 2 : 3;
    benchmark::Initialize(&count, smoke ? smokeArguments : timedArguments);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool kept = reporter.check(bounds);
    return kept || smoke ? 0 : 1;
}
