// SPDX-License-Identifier: MIT
// Runs the registered benchmarks and then prints ratios between them: what a piece of the library costs, as a
// multiple of the plain thing.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace bench
{

struct Ratio {
    const char* what;
    std::string over; // name of the benchmark
    std::string under;
    const char* aim; // in words; empty for none
};

/// Remembers the shortest time of each benchmark.
class Recorder : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const std::string& kind = run.run_name.time_type;
            const bool isWallTime =
                kind.find("real_time") != std::string::npos || kind.find("manual_time") != std::string::npos;
            const double time = isWallTime ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
            const auto [known, isNew] = m_times.emplace(
                run.run_name.function_name + (run.run_name.args.empty() ? "" : "/") + run.run_name.args,
                time);
            if (!isNew && time < known->second)
                known->second = time;
        }
    }
    double operator[](const std::string& name) const
    {
        const auto known = m_times.find(name);
        return known == m_times.end() ? 0 : known->second;
    }

private:
    std::map<std::string, double> m_times;
};

inline int run(int argc, char** argv, const std::vector<Ratio>& ratios)
{
    // The shortest of several runs: on a busy machine the others measure their neighbours.
    std::vector<char*> arguments(argv, argv + argc);
    char repetitions[] = "--benchmark_repetitions=7";
    arguments.insert(arguments.begin() + 1, repetitions);
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    Recorder times;
    benchmark::RunSpecifiedBenchmarks(&times);
    std::printf("\n");
    for (const Ratio& ratio : ratios) {
        if (times[ratio.over] > 0 && times[ratio.under] > 0)
            std::printf("%-64s %6.2f x  %s\n", ratio.what, times[ratio.over] / times[ratio.under], ratio.aim);
        else
            std::printf("%-64s   not measured\n", ratio.what);
    }
    return 0;
}

} // namespace bench
