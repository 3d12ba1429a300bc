// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/AudioMixer.h"

#include "NLECore/model/FrameMath.h"

#include <algorithm>
#include <cmath>

namespace nle {

AudioMixer::AudioMixer(Snapshot root, int sampleRate, int channels)
    : m_root(std::move(root)), m_sampleRate(sampleRate), m_channels(channels)
{
}

void AudioMixer::Mix(std::int64_t first, int count, float* samples)
{
    std::fill_n(samples, size_t(count) * size_t(m_channels), 0.0f);
    Add(*m_root, first, count, samples);
}

std::int64_t AudioMixer::SampleOfFrame(std::int64_t frame) const
{
    return SampleOfFrame(frame, m_root->frameRate);
}

std::int64_t AudioMixer::SampleOfFrame(std::int64_t frame, const NLERational& rate) const
{
    return std::llround(double(frame) * m_sampleRate / ToDouble(rate));
}

void AudioMixer::Add(const Layer& layer, std::int64_t first, int count, float* samples)
{
    if (layer.kind == LayerKind::Media)
        AddMedia(layer, first, count, samples);
    for (const Snapshot& child : layer.children) {
        if (child->mode == NLERender_VideoOnly)
            continue;
        const NLERational& rate = layer.frameRate;
        const std::int64_t start = SampleOfFrame(child->position, rate);
        const std::int64_t end =
            SampleOfFrame(child->position + NLERangeLength(child->range), rate);
        const std::int64_t from = std::max(first, start);
        const std::int64_t to = std::min(first + count, end);
        if (from < to)
            Add(*child, from - start + SampleOfFrame(child->range.in, child->frameRate),
                int(to - from), samples + (from - first) * m_channels);
    }
}

void AudioMixer::AddMedia(const Layer& layer, std::int64_t first, int count, float* samples)
{
    if (layer.media->audioStream < 0)
        return;
    const auto [entry, isNew] = m_decoders.try_emplace(&layer);
    if (isNew)
        entry->second = AudioDecoder::Open(layer.media, layer.media->audioStream, nullptr);
    if (!entry->second)
        return;
    m_block.resize(size_t(count) * size_t(m_channels));
    if (entry->second->Read(first, count, m_sampleRate, m_channels, m_block.data()) > 0)
        std::transform(m_block.begin(), m_block.end(), samples, samples, std::plus<>());
}

} // namespace nle
