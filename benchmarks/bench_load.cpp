// SPDX-License-Identifier: LGPL-2.1-or-later
// What a program pays for loading the library and taking the log, beside a bare Qt program.
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kRounds = 41;

void RunOnce(const QString& program)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, QStringList());
    if (!process.waitForFinished() || process.exitCode() != 0) {
        std::fputs("a program did not run\n", stderr);
        std::exit(1);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QString folder = QCoreApplication::applicationDirPath();
    const Rounds rounds = TakeTurns(
        kRounds, [&] { RunOnce(folder + QStringLiteral("/bench_load_with_library")); },
        [&] { RunOnce(folder + QStringLiteral("/bench_load_bare")); });
    Report("a program with the library and its log", Median(rounds.ours),
           Bare("a bare Qt program", Median(rounds.theirs)));
    return 0;
}
