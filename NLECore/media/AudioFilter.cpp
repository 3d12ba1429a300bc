// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/AudioFilter.h"

#include "NLECore/media/MediaFile_p.h"

#include <algorithm>
#include <cmath>
#include <vector>

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/channel_layout.h>
}

namespace nle {

namespace {

/// Samples that go into the filters at a time.
constexpr int kBlock = 1024;
/// Blocks after which filters that give nothing are given up.
constexpr int kMostSilentBlocks = 200;

struct GraphFreer
{
    void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
};
} // namespace

QByteArray SoundFilter::Text() const
{
    QByteArray text = name;
    char separator = '=';
    for (const auto& [option, value] : options) {
        text += separator + option + '=' + value;
        separator = ':';
    }
    return text;
}

struct AudioFilter::Private
{
    QByteArray description;
    Automation filterAt; ///< null for a chain that stays as it is
    SoundFilter current; ///< as it is automated
    int block = kBlock;  ///< samples that go into the filters at a time
    int sampleRate = 0;
    int channels = 0;
    std::int64_t leadIn = 0; ///< samples
    std::unique_ptr<AVFilterGraph, GraphFreer> graph;
    AVFilterContext* input = nullptr;
    AVFilterContext* output = nullptr;
    FramePtr frame{av_frame_alloc()};
    std::int64_t nextInput = 0;
    std::int64_t nextOutput = -1;
    std::vector<float> ready; ///< filtered, not yet read

    bool Build();
    bool Start(std::int64_t first);
    void Automate();
    bool Feed(const Source& source);
    void Drain();
};

bool AudioFilter::Private::Build()
{
    graph.reset(avfilter_graph_alloc());
    AVChannelLayout layout;
    av_channel_layout_default(&layout, channels);
    char layoutName[64] = {};
    av_channel_layout_describe(&layout, layoutName, sizeof(layoutName));
    const QByteArray layoutText(layoutName);
    const QByteArray format = QStringLiteral("sample_rate=%1:sample_fmt=flt:channel_layout=%2")
                                  .arg(sampleRate)
                                  .arg(QLatin1String(layoutText))
                                  .toLatin1();
    const QByteArray whole =
        "abuffer@in=time_base=1/" + QByteArray::number(sampleRate) + ":" + format + "," +
        description + ",aformat=sample_fmts=flt:sample_rates=" + QByteArray::number(sampleRate) +
        ":channel_layouts=" + layoutText + ",abuffersink@out";
    AVFilterInOut* inputs = nullptr;
    AVFilterInOut* outputs = nullptr;
    const bool parsed =
        graph && avfilter_graph_parse2(graph.get(), whole.constData(), &inputs, &outputs) >= 0 &&
        avfilter_graph_config(graph.get(), nullptr) >= 0;
    avfilter_inout_free(&inputs);
    avfilter_inout_free(&outputs);
    if (!parsed) {
        graph.reset();
        return false;
    }
    input = avfilter_graph_get_filter(graph.get(), "abuffer@in");
    output = avfilter_graph_get_filter(graph.get(), "abuffersink@out");
    return input && output;
}

bool AudioFilter::Private::Start(std::int64_t first)
{
    ready.clear();
    // Before sample 0 there is nothing to hear.
    nextInput = std::min(first, std::max<std::int64_t>(0, first - leadIn));
    if (filterAt) {
        // Down to the border of a block, also below 0.
        nextInput -= (nextInput % block + block) % block;
        current = filterAt(nextInput);
        description = current.Text();
    }
    nextOutput = nextInput;
    return Build();
}

void AudioFilter::Private::Automate()
{
    SoundFilter next = filterAt(nextInput);
    for (std::size_t i = 0; i < next.options.size(); ++i) {
        const auto& [option, value] = next.options[i];
        if (value != current.options[i].second)
            avfilter_graph_send_command(graph.get(), next.name.constData(), option.constData(),
                                        value.constData(), nullptr, 0, 0);
    }
    current = std::move(next);
}

bool AudioFilter::Private::Feed(const Source& source)
{
    if (filterAt)
        Automate();
    av_frame_unref(frame.get());
    frame->format = AV_SAMPLE_FMT_FLT;
    frame->sample_rate = sampleRate;
    frame->nb_samples = block;
    frame->pts = nextInput;
    av_channel_layout_default(&frame->ch_layout, channels);
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return false;
    source(nextInput, block, reinterpret_cast<float*>(frame->data[0]));
    nextInput += block;
    return av_buffersrc_add_frame(input, frame.get()) >= 0;
}

void AudioFilter::Private::Drain()
{
    while (av_buffersink_get_frame(output, frame.get()) >= 0) {
        const auto* samples = reinterpret_cast<const float*>(frame->data[0]);
        ready.insert(ready.end(), samples, samples + size_t(frame->nb_samples) * size_t(channels));
        av_frame_unref(frame.get());
    }
}

AudioFilter::AudioFilter(const QByteArray& description, int sampleRate, int channels, double leadIn)
    : d(std::make_unique<Private>())
{
    d->description = description;
    d->sampleRate = sampleRate;
    d->channels = channels;
    d->leadIn = std::llround(leadIn * sampleRate);
}

AudioFilter::AudioFilter(Automation filterAt, int sampleRate, int channels, double leadIn)
    : AudioFilter(QByteArray(), sampleRate, channels, leadIn)
{
    d->filterAt = std::move(filterAt);
    d->block = BlockLength(sampleRate);
}

AudioFilter::~AudioFilter() = default;

void AudioFilter::Read(std::int64_t first, int count, const Source& source, float* samples)
{
    const auto channels = size_t(d->channels);
    if (first != d->nextOutput && !d->Start(first)) {
        d->nextOutput = -1;
        source(first, count, samples);
        return;
    }
    const auto wanted = size_t(first - d->nextOutput + count) * channels;
    for (int silent = 0; d->ready.size() < wanted && silent < kMostSilentBlocks; ++silent) {
        const size_t before = d->ready.size();
        if (!d->Feed(source))
            break;
        d->Drain();
        if (d->ready.size() > before)
            silent = 0;
    }
    d->ready.resize(std::max(d->ready.size(), wanted));
    const auto end = d->ready.begin() + std::ptrdiff_t(wanted);
    std::copy(end - std::ptrdiff_t(size_t(count) * channels), end, samples);
    d->ready.erase(d->ready.begin(), end);
    d->nextOutput = first + count;
}

} // namespace nle
