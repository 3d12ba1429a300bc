// SPDX-License-Identifier: LGPL-2.1-or-later
// What each effect costs a frame, and clips under three of them beside the melt program with the
// filters that the engine writes for it.
#include "NLECore/model/CompositeNode.h"
#include "NLECore/model/EffectNode.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/MltWriter.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/render/Composer.h"
#include "benchmarks/Cost.h"
#include "tests/support/TestMedia.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

using namespace nle;

namespace {

constexpr QSize kSize(960, 540);
constexpr int kFrames = 150;
constexpr int kRounds = 3;
constexpr tagNLEProjectProfile kProfile = {{960, 540}, {25000000, 1000000}, 48000, 2, 3};

/// Ramps in three directions, so that tables and keys see all colours.
QImage Picture()
{
    QImage picture(kSize, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(x * 255 / 960, y * 255 / 540, (x + y) % 256));
    }
    return picture;
}

bool WriteTable(const QString& path)
{
    constexpr int side = 33;
    QByteArray text = "LUT_3D_SIZE 33\n";
    for (int i = 0; i < side * side * side; ++i) {
        const int row = i / side % side;
        const int layer = i / side / side;
        text += QByteArray::number(i % side / 33.0) + ' ' + QByteArray::number(row / 40.0) + ' ' +
                QByteArray::number(layer / 33.0) + '\n';
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// Values with which the effect has something to do.
SharedParameters Busy(const EffectKind& kind, const QString& table)
{
    auto values = std::make_shared<ParameterValues>(kind.declaration);
    const auto set = [&](const char* name, double value) {
        const int index = kind.declaration.IndexOf(QLatin1String(name));
        if (index >= 0)
            values->SetNumber(index, value);
    };
    for (const char* name : {"exposure", "brightness", "left", "spill"})
        set(name, 0.1);
    set("temperature", 4000);
    set("saturation", 1.3);
    for (int index = 0; index < int(kind.declaration.parameters.size()); ++index) {
        if (values->Row(index).kind == NLEParameter_File)
            values->SetText(index, table.toStdWString());
        else if (values->Row(index).IsText())
            values->SetText(index, L"0/0 0.4/0.5 1/1");
    }
    return values;
}

void PrintCosts(const QString& table)
{
    constexpr int frames = 30;
    const QImage picture = Picture();
    std::printf(
        "milliseconds for a frame of 960 x 540, on all threads, and of processor on one:\n");
    for (const EffectKind& kind : EffectKinds()) {
        const std::vector<SharedParameters> effects = {Busy(kind, table)};
        const auto cost = [&](bool isParallel) {
            const EffectChain chain = {effects, 0, {0.5, 0.5}, {32, isParallel}};
            std::vector<double> times;
            for (int round = 0; round < frames; ++round) {
                const Cost one = CostOf(RUSAGE_SELF, [&] {
                    chain.Apply(picture, QImage::Format_ARGB32_Premultiplied);
                });
                times.push_back(isParallel ? one.wall : one.processor);
            }
            return Median(times) * 1e3;
        };
        std::printf("  %-18s %6.2f %6.2f\n", kind.declaration.names.name, cost(true), cost(false));
    }
    std::fflush(stdout);
}

NLEComPtr<ProjectNode> ProjectWith(const QString& media, const std::vector<const char*>& effects)
{
    NLEComPtr<ProjectNode> project = MakeCom<ProjectNode>(kProfile);
    NLEComPtr<MediaClip> clip = MakeCom<MediaClip>(DescribeFile(media));
    project->AddClip(clip.get());
    for (const char* name : effects) {
        const EffectKind& kind = *FindEffect(QString::fromLatin1(name));
        const NLEComPtr<EffectNode> effect = MakeCom<EffectNode>(kind.declaration);
        effect->Parameters().Restore(*Busy(kind, QString()));
        clip->Effects().AddEffect(effect.get(), -1);
    }
    return project;
}

void Draw(const ProjectNode& project)
{
    Composer composer(project.MakeSnapshot());
    QRect place;
    for (int frame = 0; frame < kFrames; ++frame) {
        if (composer.Render(frame, kSize, &place).isNull())
            std::fprintf(stderr, "frame %d is not drawn\n", frame);
    }
}

void Melt(const ProjectNode& project, const QString& document)
{
    QString text;
    MltWriter(text, QFileInfo(document).dir()).Write(project);
    QFile file(document);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        return;
    file.close();
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start("melt", {"-silent", document, "-consumer", "avformat:/dev/null", "f=rawvideo",
                           "vcodec=rawvideo", "an=1", "real_time=-2", "progress=0"});
    if (!process.waitForFinished(600000) || process.exitCode() != 0)
        std::fprintf(stderr, "melt failed: %s\n", process.readAll().constData());
}

void Compare(const char* title, const QString& media, const std::vector<const char*>& effects)
{
    const NLEComPtr<ProjectNode> project = ProjectWith(media, effects);
    const QString document = QFileInfo(media).dir().filePath("effects.mlt");
    std::vector<Cost> own;
    std::vector<Cost> melt;
    for (int round = 0; round < kRounds; ++round) {
        own.push_back(CostOf(RUSAGE_SELF, [&] { Draw(*project); }));
        melt.push_back(CostOf(RUSAGE_CHILDREN, [&] { Melt(*project, document); }));
    }
    ReportCosts(title, kFrames, MedianCost(own), "melt", MedianCost(melt));
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString table = folder.filePath("table.cube");
    const QString media = folder.filePath("clip.mp4");
    TestClip clip;
    clip.size = QSize(1920, 1080);
    clip.frames = kFrames;
    if (!WriteTable(table)) {
        std::fprintf(stderr, "no table of colours\n");
        return 1;
    }
    PrintCosts(table);
    const QString error = MakeTestClip(media, clip);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "no clip: %s\n", qPrintable(error));
        return 1;
    }
    Compare("no effect", media, {});
    Compare("exposure, saturation, vignette", media, {"exposure", "saturation", "vignette"});
    Compare("contrast, blur, white balance", media, {"contrast", "blur", "white-balance"});
    Compare("curves, sharpen, noise reduction", media, {"curves", "sharpen", "noise-reduction"});
    return 0;
}
