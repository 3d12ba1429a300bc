// SPDX-License-Identifier: LGPL-2.1-or-later
// Pictures of 1080p in high dynamic range for a project of BT.709, beside FFmpeg's filters zscale
// and tonemap; and those of standard range for comparison.
#include "NLECore/media/FrameDecoder.h"
#include "TestMedia.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <ctime>
#include <functional>

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavutil/frame.h>
}

namespace {

constexpr int kFrames = 25;
constexpr int kRounds = 3;
const QSize kSize(1920, 1080);

bool MakeClip(const QString& path, const QStringList& tags)
{
    const QString failure =
        RunFfmpeg(QStringList{"-f", "lavfi", "-i", "testsrc2=size=1920x1080:rate=25", "-frames:v",
                              QString::number(kFrames), "-c:v", "libx264", "-preset", "veryfast"} +
                  tags + QStringList{path});
    if (!failure.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(failure));
    return failure.isEmpty();
}

/// Seconds of processor time a picture, of all threads.
double Measure(const std::function<bool()>& work)
{
    const std::clock_t start = std::clock();
    return work() ? double(std::clock() - start) / CLOCKS_PER_SEC / kFrames : -1;
}

double OwnTime(const QString& path)
{
    const auto info = nle::ProbeMedia(path, nullptr);
    const auto decoder = info ? nle::FrameDecoder::Open(info, 0, nullptr) : nullptr;
    return Measure([&] {
        int count = 0;
        while (decoder && count < kFrames && !decoder->Picture(count, kSize).isNull())
            ++count;
        return count == kFrames;
    });
}

/// The time of a chain of filters of which the first reads the file.
double FilterTime(const QString& path, const QString& chain)
{
    AVFilterGraph* graph = avfilter_graph_alloc();
    AVFilterInOut* inputs = nullptr;
    AVFilterInOut* outputs = nullptr;
    const QString text = QStringLiteral("movie=%1,%2,buffersink").arg(path, chain);
    AVFrame* frame = av_frame_alloc();
    const bool isReady =
        avfilter_graph_parse2(graph, text.toUtf8().constData(), &inputs, &outputs) >= 0 &&
        avfilter_graph_config(graph, nullptr) >= 0;
    const double time = Measure([&] {
        AVFilterContext* sink = isReady ? graph->filters[graph->nb_filters - 1] : nullptr;
        for (unsigned i = 0; isReady && i < graph->nb_filters; ++i) {
            if (qstrcmp(graph->filters[i]->filter->name, "buffersink") == 0)
                sink = graph->filters[i];
        }
        int count = 0;
        while (sink && av_buffersink_get_frame(sink, frame) >= 0) {
            av_frame_unref(frame);
            ++count;
        }
        return count == kFrames;
    });
    av_frame_free(&frame);
    avfilter_graph_free(&graph);
    return time;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString high = folder.filePath("high.mp4");
    const QString standard = folder.filePath("standard.mp4");
    if (!MakeClip(high, {"-pix_fmt", "yuv420p10le", "-color_primaries", "bt2020", "-color_trc",
                         "smpte2084", "-colorspace", "bt2020nc", "-color_range", "tv"}) ||
        !MakeClip(standard, {"-pix_fmt", "yuv420p10le", "-colorspace", "bt709"}))
        return 1;
    const QString filters = QStringLiteral(
        "zscale=t=linear:npl=203,format=gbrpf32le,zscale=p=bt709,tonemap=mobius:desat=0,"
        "zscale=t=bt709:m=gbr:r=full,format=gbrp,format=bgra");
    std::vector<double> own;
    std::vector<double> plain;
    std::vector<double> peer;
    for (int round = 0; round < kRounds; ++round) {
        own.push_back(OwnTime(high));
        plain.push_back(OwnTime(standard));
        peer.push_back(FilterTime(high, filters));
    }
    const QString what = QStringLiteral("high range in 10 bits, processors a frame");
    Report(what, Median(own), Other("zscale and tonemap", Median(peer)));
    Report(what, Median(own), Ours("standard range", Median(plain)));
    return 0;
}
