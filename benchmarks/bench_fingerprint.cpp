// SPDX-License-Identifier: LGPL-2.1-or-later
// GetFileMd5 of a sparse 10 GiB file beside a sparse 100 MiB one, with the same block size, and the
// memory that both take. Rounds are interleaved and compared by their medians.
#include "CommonLib/GlobalUtils.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int kRounds = 15;
constexpr quint64 kBlockSize = 4 << 20;

void Fingerprint(const QString& path)
{
    if (GetFileMd5(kBlockSize, path).size() != 32)
        std::fprintf(stderr, "no fingerprint\n");
}

// Largest memory that the process has used, in KiB; 0 where the system does not tell.
qint64 PeakMemory()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    const int start = text.indexOf("VmHWM:");
    return start < 0 ? 0 : text.mid(start + 6, text.indexOf("kB", start) - start - 6).toLongLong();
}

} // namespace

int main()
{
    const QTemporaryDir folder;
    QFile large(folder.filePath("large"));
    QFile small(folder.filePath("small"));
    if (!large.open(QIODevice::WriteOnly) || !large.resize(qint64(10) << 30) ||
        !small.open(QIODevice::WriteOnly) || !small.resize(qint64(100) << 20)) {
        std::fprintf(stderr, "cannot make the test files\n");
        return 1;
    }
    const qint64 before = PeakMemory();
    const Rounds rounds = TakeTurns(
        kRounds, [&] { Fingerprint(large.fileName()); }, [&] { Fingerprint(small.fileName()); });
    const qint64 after = PeakMemory();
    Report("a file of 10 GiB in blocks of 4 MiB", Median(rounds.ours),
           Ours("one of 100 MiB", Median(rounds.theirs)));
    std::printf("growth of the peak memory: %lld KiB\n", static_cast<long long>(after - before));
    return 0;
}
