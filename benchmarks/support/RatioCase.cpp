#include "support/RatioCase.h"

#include <ombrin/OmSkin.h>

#include <QtWidgets/QApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace ombrin::bench {

namespace {

struct Case
{
    std::string name;
    double target;
    Body ours;
    Body alternative;
};

struct Mean
{
    std::string prefix;
    double target;
};

std::vector<Case> &cases()
{
    static std::vector<Case> all;
    return all;
}

std::vector<Mean> &means()
{
    static std::vector<Mean> all;
    return all;
}

// Keeps the shortest time, or smallest figure, of each side: what disturbs a measurement only ever
// makes it longer.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        if (!runs.empty())
            std::fprintf(stderr, "measured %s\n", runs.front().run_name.function_name.c_str());
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred)
                continue;
            const auto figure = run.counters.find(kFigure);
            const double time =
                    figure == run.counters.end() ? run.GetAdjustedCPUTime() : figure->second.value;
            const auto found = m_times.find(run.run_name.function_name);
            if (found == m_times.end())
                m_times.emplace(run.run_name.function_name, time);
            else
                found->second = std::min(found->second, time);
        }
    }

    // Negative when the case was not measured.
    double ratio(const Case &test) const
    {
        const auto ours = m_times.find(test.name + "/ours");
        const auto alternative = m_times.find(test.name + "/alternative");
        if (ours == m_times.end() || alternative == m_times.end() || alternative->second <= 0)
            return -1;
        return ours->second / alternative->second;
    }

private:
    std::map<std::string, double> m_times;
};

bool printRow(const std::string &name, double ratio, double target)
{
    // A target of 0 marks a row that only counts in its group's mean.
    const bool met = target <= 0 || ratio <= target;
    if (target > 0)
        std::printf("| %-58s | %8.3f | %8.3f | %s |\n", name.c_str(), ratio, target,
                    met ? "met    " : "not met");
    else
        std::printf("| %-58s | %8.3f | %8s | %s |\n", name.c_str(), ratio, "", "       ");
    return met;
}

bool printTable(const RatioReporter &reporter)
{
    std::printf("\n| %-58s | %8s | %8s | %s |\n", "case", "ratio", "at most", "target");
    std::printf("|:%s|---------:|---------:|:-------|\n", std::string(59, '-').c_str());
    bool allMet = true;
    for (const Case &test : cases()) {
        const double ratio = reporter.ratio(test);
        if (ratio >= 0)
            allMet &= printRow(test.name, ratio, test.target);
    }
    for (const Mean &mean : means()) {
        double sum = 0;
        int count = 0;
        for (const Case &test : cases()) {
            const double ratio = reporter.ratio(test);
            if (ratio > 0 && test.name.rfind(mean.prefix, 0) == 0) {
                sum += std::log(ratio);
                ++count;
            }
        }
        if (count > 0)
            allMet &=
                    printRow(mean.prefix + ": geometric mean", std::exp(sum / count), mean.target);
    }
    return allMet;
}

} // namespace

RatioCase::RatioCase(const char *name, double target, Body ours, Body alternative)
{
    cases().push_back({name, target, std::move(ours), std::move(alternative)});
}

GeometricMean::GeometricMean(const char *prefix, double target)
{
    means().push_back({prefix, target});
}

} // namespace ombrin::bench

// Prints a table of all ratios with their targets. Takes the options of Google Benchmark; the exit
// code is 1 when a target was missed.
int main(int argc, char *argv[])
{
    using namespace ombrin::bench;

    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ombrin::OmSkin::init(true);

    std::vector<char *> arguments(argv, argv + argc);
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string repetitions = "--benchmark_repetitions=7";
    std::string duration = "--benchmark_min_time=0.05";
    // First, so that options given on the command line win.
    for (std::string *option : {&duration, &repetitions, &interleaving})
        arguments.insert(arguments.begin() + 1, option->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    for (const Case &test : cases()) {
        benchmark::RegisterBenchmark((test.name + "/ours").c_str(), test.ours);
        benchmark::RegisterBenchmark((test.name + "/alternative").c_str(), test.alternative);
    }
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool met = printTable(reporter);
    benchmark::Shutdown();
    return met ? 0 : 1;
}
