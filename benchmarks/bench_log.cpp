// SPDX-License-Identifier: LGPL-2.1-or-later
// What a line of the log costs, beside spdlog flushed after every line and beside the bare system
// calls, all writing the same bytes. Rounds are interleaved; figures are medians.
#include "CommonLib/BaseLog.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/basic_file_sink.h>
#include <spdlog/spdlog.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

// A round stays below the 50 MiB at which the log would rotate.
constexpr int kLines = 160000;
constexpr int kRounds = 15;
constexpr const char* kSource = "PreViewRenderHelper.cpp";
constexpr const char* kFunction = "FPreViewRenderHelper::StartRender";
constexpr const char* kMessage = "start status %d, cache folder %s";
constexpr const char* kSpdlogMessage = "start status {}, cache folder {}";
constexpr const char* kFolder = "/home/user/Videos/.RenderCache";

using Clock = std::chrono::steady_clock;
using Round = std::function<double(const QString& path)>;

// Seconds a line, wall time over all lines of all threads.
double TimeLines(int threadCount, const std::function<void(int number)>& writeLine)
{
    const int lines = kLines / threadCount;
    std::vector<std::thread> threads;
    const Clock::time_point start = Clock::now();
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < lines; ++i)
                writeLine(i);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    const std::chrono::duration<double> time = Clock::now() - start;
    return time.count() / (lines * threadCount);
}

double OurRound(int threads, const QString& path)
{
    BaseLog* log = CreateLogInstance();
    if (log->Init(QFile::encodeName(path).constData(), false, LogLevelInfo) != 0)
        return 0;
    const double cost = TimeLines(
        threads, [log](int i) { log->LogInfo(kSource, kFunction, 212, kMessage, i, kFolder); });
    log->Release();
    return cost;
}

double SpdlogRound(int threads, const QString& path)
{
    auto sink = std::make_shared<spdlog::sinks::basic_file_sink_mt>(path.toStdString(), true);
    spdlog::logger logger("bench", sink);
    // The name of the level is upper-case in our lines, as is the text here.
    logger.set_formatter(std::make_unique<spdlog::pattern_formatter>(
        "[%Y-%m-%d %H:%M:%S]-INFO- [%!]:  %v - [%s(%#)]", spdlog::pattern_time_type::local,
        "\r\n"));
    logger.flush_on(spdlog::level::trace);
    const spdlog::source_loc source(kSource, 212, kFunction);
    return TimeLines(threads, [&](int i) {
        logger.log(source, spdlog::level::info, kSpdlogMessage, i, kFolder);
    });
}

double BareRound(const QByteArray& line, const QString& path)
{
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    const std::size_t length = static_cast<std::size_t>(line.size());
    const double cost = TimeLines(1, [&](int) {
        ::lseek(file, 0, SEEK_END);
        if (::write(file, line.constData(), length) < 0)
            std::perror("write");
    });
    ::close(file);
    return cost;
}

using Costs = std::vector<std::vector<double>>; // by subject, then by round

// Interleaved rounds, each on a file of its own.
Costs Measure(const QString& folder, const std::vector<Round>& subjects)
{
    Costs costs(subjects.size());
    for (int round = 0; round < kRounds; ++round) {
        for (std::size_t i = 0; i < subjects.size(); ++i) {
            const QString path = folder + "/log";
            costs[i].push_back(subjects[i](path));
            QFile::remove(path);
        }
    }
    return costs;
}

// A line without its time stamp.
QByteArray FirstLine(const QString& folder, const Round& round)
{
    const QString path = folder + "/first";
    round(path);
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QByteArray line = file.readLine();
    file.close();
    QFile::remove(path);
    return line;
}

} // namespace

int main(int argc, char** argv)
{
    // An argument names the folder to write to; by default the one for temporary files.
    const QString parent = argc > 1 ? QFile::decodeName(argv[1]) : QDir::tempPath();
    const QTemporaryDir folder(parent + "/bench_log-XXXXXX");
    if (!folder.isValid()) {
        std::fprintf(stderr, "cannot write to %s\n", qPrintable(parent));
        return 1;
    }
    const auto ours = [](int threads) {
        return [threads](const QString& path) { return OurRound(threads, path); };
    };
    const auto peer = [](int threads) {
        return [threads](const QString& path) { return SpdlogRound(threads, path); };
    };
    const QByteArray line = FirstLine(folder.path(), ours(1));
    if (line.mid(21) != FirstLine(folder.path(), peer(1)).mid(21)) {
        std::fprintf(stderr, "the two logs do not write the same line\n");
        return 1;
    }
    const auto bare = [&line](const QString& path) { return BareRound(line, path); };

    const Costs one = Measure(folder.path(), {ours(1), peer(1), bare});
    const Costs eight = Measure(folder.path(), {ours(8), peer(8)});
    std::printf("line of %d bytes, medians of %d rounds of %d lines\n", line.size(), kRounds,
                kLines);
    Report("a line, 1 thread", Median(one[0]), Other("spdlog", Median(one[1])));
    Report("a line, 1 thread", Median(one[0]), Bare("system calls", Median(one[2])));
    Report("a line, 8 threads", Median(eight[0]), Other("spdlog", Median(eight[1])));
    return 0;
}
