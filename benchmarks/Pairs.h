// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "benchmarks/Report.h"

#include <benchmark/benchmark.h>

#include <type_traits>

/// Puts a pair of benchmarks into the report of RunPairs(): \a ours and \a theirs are their names,
/// and one run of either makes \a calls calls.
void NotePair(const QString& what, const Peer& peer, const std::string& ours,
              const std::string& theirs, int calls);

/// Small calls of ours beside those of a peer, as two benchmarks that take turns; \a peer has no
/// time yet. What the calls return counts as used. One run of either makes \a calls calls, of which
/// one is reported. Both are kept until RunPairs() is done.
template <typename Ours, typename Theirs>
void AddPair(const QString& what, Ours ours, const Peer& peer, Theirs theirs, int calls = 1)
{
    const auto add = [](const std::string& name, auto work) {
        benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State& state) mutable {
            for (auto _ : state) {
                if constexpr (std::is_void_v<decltype(work())>)
                    work();
                else
                    benchmark::DoNotOptimize(work());
            }
        });
    };
    const std::string name = what.toStdString();
    const std::string other = name + "/" + peer.name.toStdString();
    add(name, ours);
    add(other, theirs);
    NotePair(what, peer, name, other, calls);
}

/// Runs what was added and reports medians. Takes Google Benchmark's arguments, such as
/// --benchmark_filter=REGEX; gives the exit code of the program.
int RunPairs(int argc, char** argv);
