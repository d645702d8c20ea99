#include "Pairs.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace ormiva::bench {

namespace {

struct Pair {
    std::string name;
    double limit;
};

std::vector<Pair>& pairs() {
    static std::vector<Pair> all;
    return all;
}

/// Keeps the median real time of each benchmark, in microseconds.
class Medians final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.aggregate_name == "median")
                m_times[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
    /// 0 when it wasn't run, as under a filter.
    double of(const std::string& name) const {
        const auto found = m_times.find(name);
        return found == m_times.end() ? 0 : found->second;
    }

private:
    std::map<std::string, double> m_times;
};

void add(const std::string& name, const std::function<void()>& body) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [body](benchmark::State& state) {
                                     for (auto round : state) {
                                         (void)round;
                                         body();
                                     }
                                 })
        ->Unit(benchmark::kMicrosecond)
        ->UseRealTime();
}

} // namespace

void addPair(const char* name, double limit, const std::function<void()>& ours,
             const std::function<void()>& bare) {
    pairs().push_back({name, limit});
    add(name + std::string("/ours"), ours);
    add(name + std::string("/bare"), bare);
}

} // namespace ormiva::bench

int main(int argc, char** argv) {
    using namespace ormiva::bench;
    const QCoreApplication application(argc, argv);
    std::vector<char*> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=15";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string shortest = "--benchmark_min_time=0.05";
    for (std::string* argument : {&repetitions, &aggregates, &interleaving, &shortest})
        arguments.insert(arguments.begin() + 1, argument->data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());

    addLibraryPairs();
    addStorePairs();
    addTrackingPairs();
    addDocumentPairs();
    addArtPairs();
    Medians medians;
    benchmark::RunSpecifiedBenchmarks(&medians);

    std::printf("%-44s %12s %12s %8s %8s\n", "", "ours (us)", "bare (us)", "ratio", "aim");
    for (const Pair& pair : pairs()) {
        const double ours = medians.of(pair.name + "/ours");
        const double bare = medians.of(pair.name + "/bare");
        if (bare == 0)
            continue;
        std::printf("%-44s %12.1f %12.1f %8.2f %8.2f\n", pair.name.c_str(), ours, bare, ours / bare,
                    pair.limit);
    }
    return 0;
}
