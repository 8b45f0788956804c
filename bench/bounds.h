// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// What a benchmark may take: nanoseconds, or a multiple of another benchmark's time. Processor time counts:
/// the work is that of one thread, and other programs on the machine must not matter.
struct Bound
{
    const char *pName;
    double fLimit;
    const char *pComparedTo;
};

/// Prints like the console and keeps the time of every repetition, to compare the medians with the
/// bounds.
class BoundsReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median")
                continue;
            const double fNs =
                run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e9;
            if (run.run_type == Run::RT_Aggregate)
                m_times[run.run_name.str()] = {fNs};
            else
                m_times[run.run_name.str()].push_back(fNs);
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// False if a benchmark that ran exceeds its bound times `fSlack`; with zero only prints.
    bool check(const std::vector<Bound> &bounds, double fSlack) const
    {
        bool bGood = true;
        for (const Bound &bound : bounds) {
            const double fBase = bound.pComparedTo ? median(bound.pComparedTo) : 1;
            const double fValue = median(bound.pName);
            if (fBase <= 0 || fValue <= 0)
                continue;
            const bool bHolds = fSlack == 0 || fValue / fBase <= bound.fLimit * fSlack;
            bGood = bGood && bHolds;
            std::printf("%s %s: %.4g, bound %.4g%s%s\n", bHolds ? "ok  " : "FAIL", bound.pName,
                fValue / fBase, bound.fLimit, bound.pComparedTo ? " times " : " ns",
                bound.pComparedTo ? bound.pComparedTo : "");
        }
        return bGood;
    }

private:
    double median(const std::string &name) const
    {
        const auto it = m_times.find(name);
        if (it == m_times.end())
            return 0;
        std::vector<double> times = it->second;
        std::sort(times.begin(), times.end());
        return times[times.size() / 2];
    }

    std::map<std::string, std::vector<double>> m_times;
};
