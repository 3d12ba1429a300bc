// SPDX-License-Identifier: LGPL-2.1-or-later
// CompressDir and ExtractDir beside the zip library's own functions, over 10,000 small files and
// over one file of 1 GiB. Rounds are interleaved, the order within a round alternates, and the
// fastest of each is compared: what else runs on the machine only ever adds time.
#include "CommonLib/QuaZipOperate.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <JlCompress.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextCodec>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>

namespace {

bool Write(const QString& path, const QByteArray& content, int times)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (int i = 0; i < times; ++i) {
        if (file.write(content) != content.size())
            return false;
    }
    return true;
}

// Compresses like a project file does, to about a fifth.
QByteArray Content(int size)
{
    QByteArray content;
    for (quint32 state = 1; content.size() < size; state = state * 1664525 + 1013904223)
        content += "<clip in=\"" + QByteArray::number(state >> 12) + "\"/>\n";
    return content.left(size);
}

struct Times
{
    double ours = std::numeric_limits<double>::max();
    double bare = std::numeric_limits<double>::max();
};

void Measure(double& fastest, const std::function<bool()>& run)
{
    fastest = std::min(fastest, Seconds([&] {
                           if (!run())
                               std::fprintf(stderr, "failed\n");
                       }));
}

void Round(int round, Times& times, const std::function<bool()>& ours,
           const std::function<bool()>& bare)
{
    if (round % 2 == 0)
        Measure(times.ours, ours);
    Measure(times.bare, bare);
    if (round % 2 != 0)
        Measure(times.ours, ours);
}

void Compare(const char* subject, const QString& folder, const QTemporaryDir& work, int rounds)
{
    Times pack;
    Times unpack;
    const QString archive = work.filePath("a.zip");
    const QString out = work.filePath("out");
    const auto emptied = [&out] { return QDir(out).removeRecursively(); };
    for (int round = 0; round < rounds; ++round) {
        Round(
            round, pack, [&] { return QuaZipOperate::CompressDir(archive, folder); },
            [&] { return JlCompress::compressDir(archive, folder, true); });
        emptied();
        Round(
            round, unpack, [&] { return !QuaZipOperate::ExtractDir(archive, out).isEmpty(); },
            [&] { return !JlCompress::extractDir(archive, out).isEmpty(); });
        // Both write over the files of the one before, except in the very first round.
    }
    emptied();
    Report(QString("%1, CompressDir").arg(subject), pack.ours, Bare("QuaZip", pack.bare));
    Report(QString("%1, ExtractDir").arg(subject), unpack.ours, Bare("QuaZip", unpack.bare));
}

} // namespace

int main()
{
    const QTemporaryDir work;
    const QString files = work.filePath("files");
    const QString file = work.filePath("file");
    bool isReady = QDir().mkpath(file);
    for (int i = 0; i < 10000 && isReady; ++i) {
        const QString folder = files + '/' + QString::number(i / 100);
        isReady = QDir().mkpath(folder) &&
                  Write(folder + '/' + QString::number(i), Content(100 + i % 4000), 1);
    }
    if (!isReady || !Write(file + "/large", Content(1 << 24), 64)) {
        std::fprintf(stderr, "cannot make the test files\n");
        return 1;
    }
    Compare("10,000 small files", files, work, 6);
    Compare("one file of 1 GiB", file, work, 2);
    return 0;
}
