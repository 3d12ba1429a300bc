// SPDX-License-Identifier: LGPL-2.1-or-later
// What a program pays for loading the library and taking the log, beside a bare Qt program.
#include "benchmarks/Median.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>

#include <cstdio>
#include <vector>

namespace {

constexpr int kRounds = 41;

/// Milliseconds from the start of a program to its end; below 0 when it failed.
double RunOnce(const QString& program)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    process.start(program, QStringList());
    const bool ended = process.waitForFinished();
    const double time = double(timer.nsecsElapsed()) / 1e6;
    return ended && process.exitCode() == 0 ? time : -1.0;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString folder = QCoreApplication::applicationDirPath();
    std::vector<double> bare;
    std::vector<double> loaded;
    for (int round = 0; round < kRounds; ++round) {
        bare.push_back(RunOnce(folder + QStringLiteral("/bench_load_bare")));
        loaded.push_back(RunOnce(folder + QStringLiteral("/bench_load_with_library")));
        if (bare.back() < 0 || loaded.back() < 0) {
            std::fputs("a program did not run\n", stderr);
            return 1;
        }
    }
    std::printf("start of a bare Qt program     %8.2f ms\n", Median(bare));
    std::printf("with the library and its log   %8.2f ms\n", Median(loaded));
    std::printf("difference (target: below 5)   %8.2f ms, ratio %.3f\n",
                Median(loaded) - Median(bare), Median(loaded) / Median(bare));
    return 0;
}
