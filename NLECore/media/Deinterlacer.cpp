// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/Deinterlacer.h"

#include "NLECore/media/FieldOrder_p.h"

#include <deque>

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
}

namespace nle {

namespace {

struct GraphFreer
{
    void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
};

bool AreAlike(const AVFrame& a, const AVFrame& b)
{
    return a.width == b.width && a.height == b.height && a.format == b.format;
}

bool IsTopFirst(const AVFrame& frame, const MediaStream& stream, NLEFieldOrder wanted)
{
    if (wanted == NLEField_TopFirst || wanted == NLEField_BottomFirst)
        return wanted == NLEField_TopFirst;
    const NLEFieldOrder own = FieldOrderOf(frame);
    return (own != NLEField_Progressive ? own : stream.fieldOrder) != NLEField_BottomFirst;
}

} // namespace

struct Deinterlacer::Private
{
    std::unique_ptr<AVFilterGraph, GraphFreer> graph;
    AVFilterContext* input = nullptr;
    AVFilterContext* output = nullptr;
    FramePtr drawn{av_frame_alloc()};
    std::int64_t drawnNumber = -1;
    /// What went into the filter and did not come out yet.
    std::deque<std::int64_t> waiting;
    NLEFieldOrder order = NLEField_Progressive;

    bool Build(const AVFrame& like, int threads);
    bool Start(const NumberedPicture& previous, const NumberedPicture& picture,
               const MediaStream& stream, int threads);
    bool Feed(const NumberedPicture& picture, const MediaStream& stream);
    bool Take(std::int64_t number);
};

bool Deinterlacer::Private::Build(const AVFrame& like, int threads)
{
    const QByteArray description =
        QStringLiteral("buffer@in=video_size=%1x%2:pix_fmt=%3:time_base=1/1,"
                       "bwdif=mode=send_frame:parity=auto:deint=all,buffersink@out")
            .arg(like.width)
            .arg(like.height)
            .arg(like.format)
            .toLatin1();
    graph.reset(avfilter_graph_alloc());
    if (graph)
        graph->nb_threads = threads;
    AVFilterInOut* inputs = nullptr;
    AVFilterInOut* outputs = nullptr;
    const bool isBuilt =
        graph &&
        avfilter_graph_parse2(graph.get(), description.constData(), &inputs, &outputs) >= 0 &&
        avfilter_graph_config(graph.get(), nullptr) >= 0;
    avfilter_inout_free(&inputs);
    avfilter_inout_free(&outputs);
    if (!isBuilt) {
        graph.reset();
        return false;
    }
    input = avfilter_graph_get_filter(graph.get(), "buffer@in");
    output = avfilter_graph_get_filter(graph.get(), "buffersink@out");
    return input && output;
}

bool Deinterlacer::Private::Feed(const NumberedPicture& picture, const MediaStream& stream)
{
    const FramePtr frame(av_frame_clone(picture.frame));
    if (!frame)
        return false;
    frame->pts = picture.number;
    frame->repeat_pict = 0;
    MarkFields(frame.get(), IsTopFirst(*picture.frame, stream, order));
    if (av_buffersrc_add_frame(input, frame.get()) < 0)
        return false;
    waiting.push_back(picture.number);
    return true;
}

bool Deinterlacer::Private::Start(const NumberedPicture& previous, const NumberedPicture& picture,
                                  const MediaStream& stream, int threads)
{
    waiting.clear();
    if (!Build(*picture.frame, threads))
        return false;
    const bool hasPrevious = previous.frame && AreAlike(*previous.frame, *picture.frame);
    return (!hasPrevious || Feed(previous, stream)) && Feed(picture, stream);
}

// Takes what comes out up to the picture of that number.
bool Deinterlacer::Private::Take(std::int64_t number)
{
    drawnNumber = -1;
    while (!waiting.empty()) {
        av_frame_unref(drawn.get());
        if (av_buffersink_get_frame(output, drawn.get()) < 0)
            return false;
        const std::int64_t taken = waiting.front();
        waiting.pop_front();
        if (taken == number) {
            drawnNumber = number;
            return true;
        }
    }
    return false;
}

Deinterlacer::Deinterlacer() : d(std::make_unique<Private>()) {}

Deinterlacer::~Deinterlacer() = default;

bool Deinterlacer::Concerns(const AVFrame& frame, const MediaStream& stream, int codecId,
                            const Deinterlacing& wanted)
{
    if (wanted.mode != NLEDeinterlacing_Automatic)
        return wanted.mode == NLEDeinterlacing_Always;
    const bool isDeclared =
        stream.fieldOrder == NLEField_TopFirst || stream.fieldOrder == NLEField_BottomFirst;
    return FieldOrderOf(frame) != NLEField_Progressive ||
           (isDeclared && !MarksEachPicture(AVCodecID(codecId)));
}

const AVFrame* Deinterlacer::Draw(const NumberedPicture& previous, const NumberedPicture& picture,
                                  const NumberedPicture& next, const MediaStream& stream,
                                  const Deinterlacing& wanted, int threads)
{
    if (d->order != wanted.order) {
        d->order = wanted.order;
        d->drawnNumber = -1;
        d->graph.reset();
    }
    if (d->drawnNumber == picture.number)
        return d->drawn.get();
    const bool continues = d->graph && !d->waiting.empty() && d->waiting.back() == picture.number;
    if (!continues && !d->Start(previous, picture, stream, threads)) {
        d->graph.reset();
        return nullptr;
    }
    const bool hasNext = next.frame && AreAlike(*next.frame, *picture.frame);
    const bool isFed =
        hasNext ? d->Feed(next, stream) : av_buffersrc_add_frame(d->input, nullptr) >= 0;
    const bool isDrawn = isFed && d->Take(picture.number);
    // After its end the filter takes nothing more.
    if (!isDrawn || !hasNext)
        d->graph.reset();
    return isDrawn ? d->drawn.get() : nullptr;
}

} // namespace nle
