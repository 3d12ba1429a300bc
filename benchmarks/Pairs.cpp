// SPDX-License-Identifier: LGPL-2.1-or-later
#include "benchmarks/Pairs.h"

#include "benchmarks/Measure.h"

#include <map>
#include <string>
#include <vector>

namespace {

struct Pair
{
    QString what;
    Peer peer;
    std::string ours;
    std::string theirs;
    int calls;
};

std::vector<Pair>& Pairs()
{
    static std::vector<Pair> s_pairs;
    return s_pairs;
}

/// Puts benchmarks together that are pairs; one whose other one did not run is left out.
class PairReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Iteration)
                m_seconds[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                                double(run.iterations));
        }
    }
    void Finalize() override
    {
        for (const Pair& pair : Pairs()) {
            Peer peer = pair.peer;
            peer.seconds = Of(pair.theirs, pair.calls);
            const double ours = Of(pair.ours, pair.calls);
            if (ours > 0 && peer.seconds > 0)
                Report(pair.what, ours, peer);
        }
    }

private:
    double Of(const std::string& name, int calls) const
    {
        const auto found = m_seconds.find(name);
        return found == m_seconds.end() ? 0 : Median(found->second) / calls;
    }

    std::map<std::string, std::vector<double>> m_seconds; ///< of each repetition, by benchmark
};

} // namespace

void NotePair(const QString& what, const Peer& peer, const std::string& ours,
              const std::string& theirs, int calls)
{
    Pairs().push_back({what, peer, ours, theirs, calls});
}

int RunPairs(int argc, char** argv)
{
    // Repetitions of all take turns: what slows the machine for a while slows both sides. What the
    // user says comes later and counts.
    std::string repetitions = "--benchmark_repetitions=9";
    std::string turns = "--benchmark_enable_random_interleaving=true";
    std::string time = "--benchmark_min_time=0.02";
    std::vector<char*> arguments = {argv[0], repetitions.data(), turns.data(), time.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    PairReporter reporter;
    const bool hasRun = benchmark::RunSpecifiedBenchmarks(&reporter) > 0;
    // What the benchmarks hold must not outlive the application.
    benchmark::ClearRegisteredBenchmarks();
    benchmark::Shutdown();
    return hasRun ? 0 : 1;
}
