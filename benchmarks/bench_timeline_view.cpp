// SPDX-License-Identifier: LGPL-2.1-or-later
// What painting the editor's timeline costs with 100, 1,000 and 10,000 clips: the ratios to 100
// clips should be near 1, as what a paint costs depends on the pixels. Also what an edit costs the
// view. Figures are medians.
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "Host/Editor/Model/Project.h"
#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Editor/Timeline/TimelineView.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"
#include "tests/support/TestMedia.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int kRounds = 51;
constexpr int kLevels = 5;
constexpr int kFrames = 60; ///< from one clip of a level to the next, of which ten are empty
constexpr QSize kView(1920, 340);
constexpr tagNLEProjectProfile kProfile = {{320, 180}, {25, 1}, 48000, 2, 3};

struct Timeline
{
    Timeline(int count, const QString& file)
        : selection(project), model(project), view(project, selection, model, levels, ruler)
    {
        ruler.resize(kView.width(), ruler.Height());
        view.resize(kView);
        project.New(kProfile);
        project.Edit("Clips", [&](INLEEditing& editing) {
            for (int index = 0; index < count; ++index)
                Place(editing, index, file);
            return S_OK;
        });
        levels.SetCount(kLevels);
        clips = count;
    }
    /// Pictures and sound on one level, colours on the others.
    void Place(INLEEditing& editing, int index, const QString& file) const
    {
        auto* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        const int level = index % kLevels;
        const auto clip =
            level == 0 ? provider->CreateMediaTimeline(file, false)
                       : provider->CreateColorTimeline(QColor(0, 90, 120), QSize(64, 48), 25);
        const NLERange range = {0, kFrames - 11};
        clip->SetRange(&range);
        if (FAILED(editing.Place(clip.get(), index / kLevels * kFrames, level, 0)))
            std::fputs("a clip was refused\n", stderr);
    }
    double Paint(QImage& image)
    {
        return Seconds([&] { view.render(&image); });
    }
    /// Waits until nothing new comes from the threads that make pictures and wave forms.
    void Warm(QImage& image)
    {
        for (int round = 0; round < 40; ++round) {
            Paint(image);
            QElapsedTimer timer;
            timer.start();
            while (timer.elapsed() < 25)
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
        }
    }
    /// Moves a clip amid the others by a frame.
    double Edit()
    {
        const NLEComPtr<INLETimeline> clip =
            model.Clips(1).All()[std::size_t(clips / kLevels / 2)].row->node;
        int position = 0;
        clip->GetPosition(&position);
        by = -by;
        return Seconds([&] {
            project.Edit("Move", [&](INLEEditing& editing) {
                return editing.Move(clip.get(), position + by, 1, 0);
            });
        });
    }

    Project project;
    Selection selection;
    TimelineModel model;
    LevelLayout levels;
    TimelineRuler ruler;
    TimelineView view;
    int clips;
    int by = 1;
};

/// \a frames fill the view, from the middle of the clips on; 0: all of them do.
double PaintTime(Timeline& timeline, int frames)
{
    const int all = timeline.model.Length();
    if (frames > all)
        return -1;
    timeline.ruler.SetZoom(timeline.ruler.FindZoom(frames > 0 ? frames : all, kView.width()));
    timeline.ruler.SetOffsetFrames(frames > 0 ? std::max(0, all - frames) / 2 : 0);
    QImage image(kView, QImage::Format_ARGB32_Premultiplied);
    timeline.Warm(image);
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round)
        times.push_back(timeline.Paint(image));
    return Median(times);
}

double EditTime(Timeline& timeline)
{
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round)
        times.push_back(timeline.Edit());
    return Median(times);
}

/// Of one and the same picture of clips; times below 0, of too few clips to fill it, are left out.
void Compare(const QString& name, const std::vector<std::unique_ptr<Timeline>>& timelines,
             const std::vector<double>& times)
{
    std::size_t first = 0;
    while (times[first] < 0)
        ++first;
    for (std::size_t i = first + 1; i < times.size(); ++i)
        Report(QString("%1 of %2").arg(name).arg(timelines[i]->clips), times[i],
               Ours(QString("of %1").arg(timelines[first]->clips), times[first]));
}

void Run(const QString& file)
{
    std::vector<std::unique_ptr<Timeline>> timelines;
    for (const int count : {100, 1000, 10000})
        timelines.push_back(std::make_unique<Timeline>(count, file));
    const std::pair<const char*, int> zooms[] = {{"2 clips a level", 2 * kFrames},
                                                 {"19 clips a level", 19 * kFrames},
                                                 {"100 clips a level", 100 * kFrames},
                                                 {"500 clips a level", 500 * kFrames},
                                                 {"all clips", 0}};
    for (const auto& [name, frames] : zooms) {
        std::vector<double> times;
        for (auto& timeline : timelines)
            times.push_back(PaintTime(*timeline, frames));
        Compare(QString("a paint of ") + name, timelines, times);
    }
    std::vector<double> times;
    for (auto& timeline : timelines)
        times.push_back(EditTime(*timeline));
    Compare("an edit, and the view's index", timelines, times);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    app.setStyleSheet(gGetCommonLibStyles());
    const QTemporaryDir folder;
    const QString file = folder.filePath("clip.mp4");
    TestClip clip;
    clip.frames = kFrames;
    clip.audioCodec = "aac";
    if (const QString problem = MakeTestClip(file, clip); !problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        return 1;
    }
    Run(file);
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    return 0;
}
