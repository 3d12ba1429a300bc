// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QFile>

#include <functional>
#include <vector>

#include <sys/resource.h>

/// Seconds, and seconds of processors, that a piece of work took.
struct Cost
{
    double wall;
    double processor;
};

/// The cost of \a work; processors are those of \a who, as getrusage() names them.
inline Cost CostOf(int who, const std::function<void()>& work)
{
    const auto processor = [who] {
        rusage usage = {};
        getrusage(who, &usage);
        return double(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
               double(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
    };
    const double before = processor();
    const double wall = Seconds(work);
    return {wall, processor() - before};
}

/// Medians of several runs.
inline Cost MedianCost(const std::vector<Cost>& costs)
{
    std::vector<double> wall;
    std::vector<double> processor;
    for (const Cost& cost : costs) {
        wall.push_back(cost.wall);
        processor.push_back(cost.processor);
    }
    return {Median(wall), Median(processor)};
}

/// Reports both costs of a frame of \a frames: time, and that of processors.
inline void ReportCosts(const QString& film, int frames, const Cost& ours, const QString& peer,
                        const Cost& theirs)
{
    Report(film + ", a frame", ours.wall / frames, Other(peer, theirs.wall / frames));
    Report(film + ", processors a frame", ours.processor / frames,
           Other(peer, theirs.processor / frames));
}

/// What the process holds in memory, in MiB: now, or at the most since the last call.
inline double Memory(const char* field)
{
    QFile status("/proc/self/status");
    double value = 0;
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith(field))
                value = line.mid(int(qstrlen(field))).simplified().split(' ').front().toDouble();
        }
    }
    QFile reset("/proc/self/clear_refs");
    if (reset.open(QIODevice::WriteOnly))
        reset.write("5");
    return value / 1024;
}
