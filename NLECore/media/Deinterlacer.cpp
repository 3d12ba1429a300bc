// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/Deinterlacer.h"

#include "NLECore/media/FieldOrder_p.h"
#include "NLECore/media/FilterGraph_p.h"

#include <deque>

namespace nle {

namespace {

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
    FilterGraph graph;
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
    const QByteArray options = QStringLiteral("video_size=%1x%2:pix_fmt=%3:time_base=1/1")
                                   .arg(like.width)
                                   .arg(like.height)
                                   .arg(like.format)
                                   .toLatin1();
    return graph.BuildPictures(options, "bwdif=mode=send_frame:parity=auto:deint=all", threads);
}

bool Deinterlacer::Private::Feed(const NumberedPicture& picture, const MediaStream& stream)
{
    const FramePtr frame(av_frame_clone(picture.frame));
    if (!frame)
        return false;
    frame->pts = picture.number;
    frame->repeat_pict = 0;
    MarkFields(frame.get(), IsTopFirst(*picture.frame, stream, order));
    if (!graph.Add(frame.get()))
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
        if (!graph.Take(*drawn))
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
        d->graph.Clear();
    }
    if (d->drawnNumber == picture.number)
        return d->drawn.get();
    const bool continues = d->graph && !d->waiting.empty() && d->waiting.back() == picture.number;
    if (!continues && !d->Start(previous, picture, stream, threads)) {
        d->graph.Clear();
        return nullptr;
    }
    const bool hasNext = next.frame && AreAlike(*next.frame, *picture.frame);
    const bool isFed = hasNext ? d->Feed(next, stream) : d->graph.Add(nullptr);
    const bool isDrawn = isFed && d->Take(picture.number);
    // After its end the filter takes nothing more.
    if (!isDrawn || !hasNext)
        d->graph.Clear();
    return isDrawn ? d->drawn.get() : nullptr;
}

} // namespace nle
