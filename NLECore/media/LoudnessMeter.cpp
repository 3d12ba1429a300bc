// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/media/LoudnessMeter.h"

#include "NLECore/media/FilterGraph_p.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace nle {

namespace {

/// Samples for each, between which a peak may stand.
constexpr int kOversampling = 4;

/// Filters that sound goes into.
class Measuring
{
public:
    bool Build(const QByteArray& filters, int sampleRate, int channels)
    {
        m_sampleRate = sampleRate;
        m_channels = channels;
        return m_graph.BuildSound(filters, sampleRate, channels);
    }

    /// Gives what comes out to \a take; null \a samples end the sound.
    template <typename Take>
    bool Add(const float* samples, int count, Take take)
    {
        const FramePtr frame(av_frame_alloc());
        if (!frame || (samples && !Fill(*frame, samples, count)) ||
            !m_graph.Add(samples ? frame.get() : nullptr))
            return false;
        while (m_graph.Take(*frame))
            take(*frame);
        return true;
    }

private:
    bool Fill(AVFrame& frame, const float* samples, int count)
    {
        if (!AllocateSound(frame, m_sampleRate, m_channels, count))
            return false;
        frame.pts = m_next;
        m_next += count;
        std::memcpy(frame.data[0], samples, std::size_t(count) * std::size_t(m_channels) * 4);
        return true;
    }

    FilterGraph m_graph;
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
