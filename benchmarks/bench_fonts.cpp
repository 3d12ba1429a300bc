// SPDX-License-Identifier: LGPL-2.1-or-later
// A folder of 2,000 fonts, scanned at a first start and at later ones, beside a bare listing of the
// folder and beside Qt opening every file. Medians of rounds in one run.
#include "NLECore/media/FontFiles.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"
#include "tests/support/TestFonts.h"

#include <QDateTime>
#include <QDir>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kFonts = 2000;
constexpr int kRounds = 15;

/// Copies of a monospaced face of 340 KB, each under a family of its own.
bool WriteFonts(const QString& folder)
{
    const QByteArray font = Contents("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    for (int i = 0; i < kFonts; ++i) {
        const QString name = QString("Bench %1").arg(i, 4, 10, QLatin1Char('0'));
        if (font.isEmpty() ||
            !SetContents(folder + '/' + name + ".ttf", TestFonts::Renamed(font, name)))
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
    const double bare = Seconds([&] {
        for (const QString& file : files)
            QFontDatabase::addApplicationFont(folder.filePath(file));
    });
    int found = 0;
    const double first = Seconds([&] { found = Scan(folder.path()); });
    qint64 sum = 0; // keeps the listing from being optimised away
    const Rounds later = TakeTurns(
        kRounds, [&] { found = std::min(found, Scan(folder.path())); },
        [&] { sum += List(folder.path()); });
    if (found != kFonts || sum == 0) {
        std::printf("only %d fonts were found\n", found);
        return 1;
    }
    Report("2,000 fonts at a first start", first, Other("Qt opening each file", bare));
    Report("2,000 fonts at a later start", Median(later.ours),
           Bare("listing the folder", Median(later.theirs)));
    return 0;
}
