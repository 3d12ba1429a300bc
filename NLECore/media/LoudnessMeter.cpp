// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/LoudnessMeter.h"

#include "NLECore/media/MediaFile_p.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <cstring>

extern "C" {
#include <libavfilter/avfilter.h>
#include <libavfilter/buffersink.h>
#include <libavfilter/buffersrc.h>
#include <libavutil/channel_layout.h>
}

namespace nle {

namespace {

/// Samples for each, between which a peak may stand.
constexpr int kOversampling = 4;

struct GraphFreer
{
    void operator()(AVFilterGraph* graph) const { avfilter_graph_free(&graph); }
};

/// One filter of libavfilter that sound goes into.
class Measuring
{
public:
    bool Build(const QByteArray& filter, int sampleRate, int channels)
    {
        m_sampleRate = sampleRate;
        m_channels = channels;
        m_graph.reset(avfilter_graph_alloc());
        AVChannelLayout layout;
        av_channel_layout_default(&layout, channels);
        char name[64] = {};
        av_channel_layout_describe(&layout, name, sizeof(name));
        const QByteArray rate = QByteArray::number(sampleRate);
        const QByteArray whole = "abuffer@in=time_base=1/" + rate + ":sample_rate=" + rate +
                                 ":sample_fmt=flt:channel_layout=" + QByteArray(name) + "," +
                                 filter + ",abuffersink@out";
        AVFilterInOut* inputs = nullptr;
        AVFilterInOut* outputs = nullptr;
        const bool isParsed =
            m_graph &&
            avfilter_graph_parse2(m_graph.get(), whole.constData(), &inputs, &outputs) >= 0 &&
            avfilter_graph_config(m_graph.get(), nullptr) >= 0;
        avfilter_inout_free(&inputs);
        avfilter_inout_free(&outputs);
        m_input = isParsed ? avfilter_graph_get_filter(m_graph.get(), "abuffer@in") : nullptr;
        m_output = isParsed ? avfilter_graph_get_filter(m_graph.get(), "abuffersink@out") : nullptr;
        return m_input && m_output;
    }

    /// Gives what comes out to \a take; null \a samples end the sound.
    template <typename Take>
    bool Add(const float* samples, int count, Take take)
    {
        FramePtr frame(av_frame_alloc());
        if (!m_input || !frame)
            return false;
        if (samples && !Fill(*frame, samples, count))
            return false;
        if (av_buffersrc_add_frame(m_input, samples ? frame.get() : nullptr) < 0)
            return false;
        while (av_buffersink_get_frame(m_output, frame.get()) >= 0) {
            take(*frame);
            av_frame_unref(frame.get());
        }
        return true;
    }

private:
    bool Fill(AVFrame& frame, const float* samples, int count)
    {
        frame.format = AV_SAMPLE_FMT_FLT;
        frame.sample_rate = m_sampleRate;
        frame.nb_samples = count;
        frame.pts = m_next;
        m_next += count;
        av_channel_layout_default(&frame.ch_layout, m_channels);
        if (av_frame_get_buffer(&frame, 0) < 0)
            return false;
        std::memcpy(frame.data[0], samples, std::size_t(count) * std::size_t(m_channels) * 4);
        return true;
    }

    std::unique_ptr<AVFilterGraph, GraphFreer> m_graph;
    AVFilterContext* m_input = nullptr;
    AVFilterContext* m_output = nullptr;
    int m_sampleRate = 0;
    int m_channels = 0;
    std::int64_t m_next = 0;
};

/// A number that the filter has written beside the sound; \a value stays where it has none.
void TakeNumber(const AVFrame& frame, const char* key, double* value)
{
    const AVDictionaryEntry* entry = av_dict_get(frame.metadata, key, nullptr, 0);
    bool isNumber = false;
    const double number = entry ? QByteArray(entry->value).toDouble(&isNumber) : 0;
    if (isNumber && std::isfinite(number))
        *value = number;
}

} // namespace

struct LoudnessMeter::Private
{
    Measuring loudness;
    Measuring peaks;
    bool isReady = false;
    Loudness result;
    float highest = 0;

    bool Add(const float* samples, int count)
    {
        const auto takeLoudness = [this](const AVFrame& frame) {
            TakeNumber(frame, "lavfi.r128.I", &result.integrated);
            TakeNumber(frame, "lavfi.r128.LRA", &result.range);
        };
        const auto takePeaks = [this](const AVFrame& frame) {
            const auto* sample = reinterpret_cast<const float*>(frame.data[0]);
            const auto* end =
                sample + std::ptrdiff_t(frame.nb_samples) * frame.ch_layout.nb_channels;
            for (; sample != end; ++sample)
                highest = std::max(highest, std::abs(*sample));
        };
        return isReady && loudness.Add(samples, count, takeLoudness) &&
               peaks.Add(samples, count, takePeaks);
    }
};

LoudnessMeter::LoudnessMeter(int sampleRate, int channels) : d(std::make_unique<Private>())
{
    const QByteArray finer = QByteArray::number(sampleRate * kOversampling);
    d->isReady =
        d->loudness.Build("ebur128=metadata=1", sampleRate, channels) &&
        d->peaks.Build("aresample=" + finer + ",aformat=sample_fmts=flt", sampleRate, channels);
}

LoudnessMeter::~LoudnessMeter() = default;

bool LoudnessMeter::Add(const float* samples, int count)
{
    return d->Add(samples, count);
}

Loudness LoudnessMeter::Finish()
{
    d->Add(nullptr, 0);
    constexpr double decade = 20;
    if (d->highest > 0)
        d->result.truePeak = std::max(Loudness::kNoPeak, decade * std::log10(double(d->highest)));
    d->result.integrated = std::max(d->result.integrated, Loudness::kSilent);
    return d->result;
}

} // namespace nle
