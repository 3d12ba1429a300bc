// SPDX-License-Identifier: LGPL-2.1-or-later
// Drives the editor round after round for as long as told, samples what the process holds after
// each, and fails where that grows in the second half of the time:
//
//     long_run MINUTES FOLDER [SEED]
//
// The folder gets the samples and a plot of them. COMMONLIB_LEAK is a number of bytes to lose in
// each round, which the run then finds.
#include "CommonLib/BaseLog.h"
#include "CommonLib/MultiLangMgr.h"
#include "Host/Editor/Window/EditorWindow.h"
#include "Host/HostLanguage.h"
#include "Host/QtMessages.h"
#include "tests/long_run/Plot.h"
#include "tests/long_run/Round.h"
#include "tests/support/EngineFixture.h"

#include <QApplication>
#include <QElapsedTimer>

namespace {

constexpr int kFewest = 8; // rounds without which nothing can be said

bool MakeMedia(const QString& folder, QStringList& paths)
{
    TestClip clip;
    clip.frames = 130;
    clip.audioCodec = QStringLiteral("aac");
    for (const char* name : {"/a.mp4", "/b.mp4"}) {
        paths << folder + name;
        if (!MakeTestClip(paths.last(), clip).isEmpty())
            return false;
    }
    return true;
}

/// All files of the process lie below \a folder.
void Settle(const QString& folder)
{
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME",
                             "XDG_RUNTIME_DIR"}) {
        const QString path = folder + '/' + QLatin1String(name);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(name, path.toLocal8Bit());
    }
}

/// What failed; empty when nothing did. What is written is looked at while it runs.
QString Drive(const QString& folder, double minutes, unsigned seed, const QString& output,
              Samples& samples)
{
    QStringList media;
    if (!MakeMedia(folder, media))
        return QStringLiteral("media cannot be made");
    EditorWindow window({folder + "/autosave", folder + "/log", folder + "/preview"});
    window.show();
    Round round(window, folder, media, seed);
    const std::size_t leak = std::size_t(qEnvironmentVariableIntValue("COMMONLIB_LEAK"));
    QVector<void*> lost;
    QElapsedTimer timer;
    timer.start();
    for (int number = 0; double(timer.elapsed()) < minutes * 60000; ++number) {
        if (const char* failed = round.Run(number))
            return QStringLiteral("round %1: %2").arg(number).arg(QLatin1String(failed));
        lost << calloc(1, leak);
        samples << TakeSample(double(timer.elapsed()) / 60000, folder);
        if (!WriteSamples(samples, output + "/long-run.csv"))
            return QStringLiteral("samples cannot be written");
    }
    for (void* memory : lost)
        free(memory);
    return {};
}

/// Whether nothing grew.
bool Judge(const Samples& samples)
{
    bool isFlat = true;
    for (int i = 0; i < kQuantities; ++i) {
        const Growth growth = GrowthOf(samples, i);
        std::printf("%-18s %8.2f to %8.2f, may grow by %5.2f: %s\n",
                    Quantities()[std::size_t(i)].name, growth.from, growth.to, growth.limit,
                    growth.IsFlat() ? "flat" : "grows");
        isFlat = isFlat && growth.IsFlat();
    }
    return isFlat;
}

int Conclude(const Samples& samples, const QString& output)
{
    if (samples.size() < kFewest) {
        std::printf("%d rounds tell nothing\n", int(samples.size()));
        return 1;
    }
    QFile plot(output + "/long-run.svg");
    if (!plot.open(QIODevice::WriteOnly) || plot.write(PlotOf(samples)) < 0)
        return 1;
    std::printf("%d rounds in %.0f minutes\n", int(samples.size()), samples.last().minutes);
    return Judge(samples) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s MINUTES FOLDER [SEED]\n", argv[0]);
        return 2;
    }
    const QTemporaryDir folder;
    Settle(folder.path());
    QApplication app(argc, argv);
    const QString output = QString::fromLocal8Bit(argv[2]);
    const unsigned seed =
        argc > 3 ? unsigned(std::atol(argv[3])) : std::random_device()() % 1000000;
    std::printf("%s minutes, seed %u\n", argv[1], seed);
    if (!QDir().mkpath(output))
        return 2;
    Samples samples = std::atof(argv[1]) > 0 ? Samples() : ReadSamples(output + "/long-run.csv");
    GetGlobalLogInstance()->Init(QFile::encodeName(folder.filePath("log")).constData(), false,
                                 LogLevelInfo);
    QString failed;
    {
        const QtMessages messages;
        const HostLanguage language;
        MultiLangMgr::GetInstance()->SetConfigPath(folder.filePath("language.ini"));
        const EngineFixture engine;
        failed = Drive(folder.path(), std::atof(argv[1]), seed, output, samples);
    }
    ReleseGlobalLogInstance();
    if (!failed.isEmpty()) {
        std::printf("failed: %s\n", qPrintable(failed));
        return 1;
    }
    return Conclude(samples, output);
}
