// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/AudioFilter.h"

#include "NLECore/media/FilterGraph_p.h"

#include <algorithm>
#include <cmath>
#include <vector>

extern "C" {
#include <libavfilter/avfilter.h>
}

namespace nle {

namespace {

/// Samples that go into the filters at a time.
constexpr int kBlock = 1024;
/// Blocks after which filters that give nothing are given up.
constexpr int kMostSilentBlocks = 200;

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
    FilterGraph graph;
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
    const QByteArray format =
        ",aformat=sample_fmts=flt:sample_rates=" + QByteArray::number(sampleRate) +
        ":channel_layouts=" + ChannelLayoutName(channels);
    return graph.BuildSound(description + format, sampleRate, channels);
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
            graph.Change(next.name, option, value);
    }
    current = std::move(next);
}

bool AudioFilter::Private::Feed(const Source& source)
{
    if (filterAt)
        Automate();
    av_frame_unref(frame.get());
    if (!AllocateSound(*frame, sampleRate, channels, block))
        return false;
    frame->pts = nextInput;
    source(nextInput, block, reinterpret_cast<float*>(frame->data[0]));
    nextInput += block;
    return graph.Add(frame.get());
}

void AudioFilter::Private::Drain()
{
    while (graph.Take(*frame)) {
        const auto* samples = reinterpret_cast<const float*>(frame->data[0]);
        ready.insert(ready.end(), samples, samples + size_t(frame->nb_samples) * size_t(channels));
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

bool AudioFilter::IsThere(const char* name)
{
    return avfilter_get_by_name(name) != nullptr;
}

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
