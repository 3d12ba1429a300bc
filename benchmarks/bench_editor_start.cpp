// SPDX-License-Identifier: LGPL-2.1-or-later
// How long a user waits for the editor: from its start until its window is drawn, and until a
// project of 1,000 clips shows in it, beside what the program takes for "--version" alone. Medians
// and the longest of all rounds; the time that processors worked for it stands beside, as others
// may have had them.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "benchmarks/LargeFilm.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr int kRounds = 9;
constexpr int kClips = 1000;
constexpr int kFiles = 100;
constexpr int kPatience = 30000; // milliseconds
const char kWindow[] = "The window is there";
const char kFilesOpen[] = "Its files are open";

/// Seconds.
struct Waited
{
    double passed = -1;
    double worked = -1;
};

double WorkedBy(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    constexpr int user = 11; // fields behind the name
    const QList<QByteArray> fields = file.readAll().split(')').last().simplified().split(' ');
    const double ticks = fields.value(user).toDouble() + fields.value(user + 1).toDouble();
    return ticks / double(sysconf(_SC_CLK_TCK));
}

QByteArray LogIn(const QString& home)
{
    QFile file(home + QStringLiteral("/data/CommonLib/CommonLibEditor/CommonLibEditor.log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// From the start of the editor with \a arguments until \a line stands in its log.
Waited TimeUntil(const char* line, const QStringList& arguments)
{
    const QTemporaryDir home;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), home.filePath(QStringLiteral("cache")));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    QProcess editor;
    editor.setProcessEnvironment(environment);
    editor.setStandardErrorFile(QProcess::nullDevice());
    editor.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    editor.start(QCoreApplication::applicationDirPath() + QStringLiteral("/CommonLibEditor"),
                 arguments);
    Waited cost;
    while (timer.elapsed() < kPatience && !LogIn(home.path()).contains(line))
        QThread::msleep(2);
    cost.passed = double(timer.nsecsElapsed()) / 1e9;
    cost.worked = WorkedBy(editor.processId());
    editor.kill();
    editor.waitForFinished();
    return cost;
}

void PrintVersion()
{
    QProcess::execute(QCoreApplication::applicationDirPath() + QStringLiteral("/CommonLibEditor"),
                      {QStringLiteral("--version")});
}

void Compare(const char* name, const Peer& peer, const char* line, const QStringList& arguments)
{
    std::vector<double> passed;
    std::vector<double> worked;
    for (int round = 0; round < kRounds; ++round) {
        const Waited cost = TimeUntil(line, arguments);
        passed.push_back(cost.passed);
        worked.push_back(cost.worked);
    }
    Report(name, Median(passed), peer);
    std::printf("  longest %.0f ms, processors worked %.0f ms\n", Largest(passed) * 1e3,
                Median(worked) * 1e3);
}

void Run(const QString& folder)
{
    const LargeFilm film = LargeFilm::Make(folder, kClips, kFiles);
    if (film.document.isEmpty())
        return;
    std::vector<double> versions;
    for (int round = 0; round < kRounds; ++round)
        versions.push_back(Seconds(PrintVersion));
    const Peer peer = Bare("--version", Median(versions));
    Compare("window drawn", peer, kWindow, {});
    Compare("window drawn, with a project", peer, kWindow, {film.document});
    Compare("project of 1,000 clips open", peer, kFilesOpen, {film.document});
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QTemporaryDir folder;
    Run(folder.path());
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}
