// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

/// What a benchmark may take: nanoseconds, or a multiple of the time of `comparedTo` if that is not empty.
/// Processor time counts, which other programs do not disturb, unless the benchmark asks for real time.
struct Bound
{
    std::string name;
    double fLimit;
    std::string comparedTo;
};

/// Prints like the console reporter and keeps the time of every repetition. The bounds are compared with the
/// medians; in a run with slack, which is short, the fastest repetition counts instead, because whatever else
/// the machine does slows the others.
class BoundsReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median")
                continue;
            const bool bReal = run.run_name.time_type == "real_time";
            const double fNs = (bReal ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime())
                / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
            std::vector<double> &times = m_times[run.run_name.function_name];
            if (run.run_type == Run::RT_Iteration || times.empty()) // a median alone stands for all
                times.push_back(fNs);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// False if a benchmark that ran exceeds its bound times `fSlack`, or none ran. With 0 it only prints.
    bool check(const std::vector<Bound> &bounds, double fSlack) const
    {
        bool bGood = true;
        int nCompared = 0;
        for (const Bound &bound : bounds) {
            const double fBase = bound.comparedTo.empty() ? 1 : time(bound.comparedTo, fSlack != 1);
            const double fValue = time(bound.name, fSlack != 1);
            if (fBase <= 0 || fValue <= 0)
                continue;
            const bool bHolds = fSlack == 0 || fValue / fBase <= bound.fLimit * fSlack;
            bGood = bGood && bHolds;
            ++nCompared;
            std::printf("%s %s: %.4g, bound %.4g%s%s\n", bHolds ? "ok  " : "FAIL", bound.name.c_str(),
                fValue / fBase, bound.fLimit, bound.comparedTo.empty() ? " ns" : " times ",
                bound.comparedTo.c_str());
        }
        return bGood && nCompared > 0;
    }

private:
    double time(const std::string &name, bool bFastest) const
    {
        const auto it = m_times.find(name);
        if (it == m_times.end())
            return 0;
        std::vector<double> times = it->second;
        std::sort(times.begin(), times.end());
        return times[bFastest ? 0 : times.size() / 2];
    }

    std::map<std::string, std::vector<double>> m_times;
};

/// Runs the registered benchmarks and returns the exit code: 0 if all bounds hold, times the number in the
/// environment variable KELPA_BENCH_SLACK.
inline int runBenchmarks(int argc, char *argv[], const std::vector<Bound> &bounds)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    BoundsReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const char *pSlack = std::getenv("KELPA_BENCH_SLACK");
    return reporter.check(bounds, pSlack ? std::atof(pSlack) : 1) ? 0 : 1;
}
