// SPDX-License-Identifier: LGPL-2.1-or-later
// A folder of 2,000 fonts, scanned at a first start and at later ones, beside a bare listing of the
// folder and beside Qt opening every file. Medians of rounds in one run.
#include "NLECore/media/FontFiles.h"
#include "benchmarks/Median.h"
#include "tests/support/TestFonts.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

constexpr int kFonts = 2000;
constexpr int kRounds = 15;
constexpr double kTarget = 100;

double Time(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Copies of a monospaced face of 340 KB, each under a family of its own.
bool WriteFonts(const QString& folder)
{
    const QByteArray font = TestFonts::Read("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    for (int i = 0; i < kFonts; ++i) {
        const QString name = QString("Bench %1").arg(i, 4, 10, QLatin1Char('0'));
        if (font.isEmpty() ||
            !TestFonts::Write(folder + '/' + name + ".ttf", TestFonts::Renamed(font, name)))
            return false;
    }
    return true;
}

int Scan(const QString& folder)
{
    nle::FontFiles files;
    files.SetCacheFile(folder + "/Cache.xml");
    return files.Scan(folder).size();
}

qint64 List(const QString& folder)
{
    qint64 sum = 0;
    const QFileInfoList files = QDir(folder).entryInfoList({"*.ttf"}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        sum += file.size() + file.lastModified().toMSecsSinceEpoch();
    return sum;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    if (!WriteFonts(folder.path())) {
        std::fputs("cannot write the fonts\n", stderr);
        return 1;
    }
    const QStringList files = QDir(folder.path()).entryList({"*.ttf"}, QDir::Files);
    const double bare = Time([&] {
        for (const QString& file : files)
            QFontDatabase::addApplicationFont(folder.filePath(file));
    });
    int found = 0;
    const double first = Time([&] { found = Scan(folder.path()); });
    std::vector<double> later;
    std::vector<double> listing;
    qint64 sum = 0; // keeps the listing from being optimised away
    for (int round = 0; round < kRounds; ++round) {
        later.push_back(Time([&] { found = std::min(found, Scan(folder.path())); }));
        listing.push_back(Time([&] { sum += List(folder.path()); }));
    }
    if (found != kFonts || sum == 0) {
        std::printf("only %d fonts were found\n", found);
        return 1;
    }
    std::printf("first start %8.1f ms, Qt opening each file %8.1f ms, ratio %.2f\n", first, bare,
                first / bare);
    std::printf("later start %8.1f ms (target: below %.0f), bare listing %8.1f ms, ratio %.2f\n",
                Median(later), kTarget, Median(listing), Median(later) / Median(listing));
    return 0;
}
