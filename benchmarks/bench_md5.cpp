// SPDX-License-Identifier: LGPL-2.1-or-later
// FileOperation::CalcFileMD5 beside the md5sum program and beside QCryptographicHash
// alone, over the same file in the page cache. Rounds are interleaved and compared by their
// medians.
#include "CommonLib/FileOperation.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QTemporaryFile>

#include <cstdio>
#include <vector>

namespace {

constexpr qint64 kFileSize = qint64(1) << 30;
constexpr int kRounds = 5;

bool Fill(QFile& file)
{
    QByteArray block(1 << 20, 0);
    quint32 state = 1;
    for (qint64 written = 0; written < kFileSize; written += block.size()) {
        for (char& byte : block) {
            state = state * 1664525 + 1013904223;
            byte = static_cast<char>(state >> 24);
        }
        if (file.write(block) != block.size())
            return false;
    }
    return file.flush();
}

QString PeerDigest(const QString& path)
{
    QProcess process;
    process.start("md5sum", {path});
    process.waitForFinished(-1);
    return QString::fromLatin1(process.readAllStandardOutput().left(32));
}

// What the hash itself costs, without reading.
void HashMemory()
{
    const QByteArray block(10240, 'x');
    QCryptographicHash hash(QCryptographicHash::Md5);
    for (qint64 done = 0; done < kFileSize; done += block.size())
        hash.addData(block);
    hash.result();
}

} // namespace

int main()
{
    QTemporaryFile file;
    if (!file.open() || !Fill(file)) {
        std::fprintf(stderr, "cannot write the test file\n");
        return 1;
    }
    const QString path = file.fileName();
    if (FileOperation::CalcFileMD5(path) != PeerDigest(path)) {
        std::fprintf(stderr, "the two digests differ\n");
        return 1;
    }
    std::vector<double> ours;
    std::vector<double> peer;
    std::vector<double> memory;
    for (int round = 0; round < kRounds; ++round) {
        ours.push_back(Seconds([&] { FileOperation::CalcFileMD5(path); }));
        peer.push_back(Seconds([&] { PeerDigest(path); }));
        memory.push_back(Seconds(HashMemory));
    }
    Report("CalcFileMD5 of 1 GiB", Median(ours), Other("md5sum", Median(peer)));
    Report("CalcFileMD5 of 1 GiB", Median(ours),
           Bare("QCryptographicHash in memory", Median(memory)));
    return 0;
}
