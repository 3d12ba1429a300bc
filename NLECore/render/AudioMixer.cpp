// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/AudioMixer.h"

#include "NLECore/render/PitchFilter.h"
#include "NLECore/render/SoundKinds.h"
#include "NLECore/scene/SourceChoice.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <utility>

namespace nle {

namespace {

QString Number(double value)
{
    return QString::number(value, 'f', 6);
}

/// Pitch, denoise and equaliser as a chain of filters.
QStringList DescribeSettings(const AudioSettings& settings, int sampleRate)
{
    QStringList filters;
    if (settings.pitch != 0)
        filters << QString::fromLatin1(PitchFilters(PitchMethodHere(), settings.pitch, sampleRate));
    if (settings.denoise && settings.denoiseLevel > 0)
        filters << QStringLiteral("afftdn=nf=-30:nr=") + Number(settings.denoiseLevel);
    for (size_t band = 0; settings.equalizer && band < kEqualizerBands.size(); ++band) {
        if (settings.equalizerGains[band] != 0)
            filters << QStringLiteral("equalizer=width_type=o:width=1:frequency=%1:gain=%2")
                           .arg(Number(kEqualizerBands[band]),
                                Number(settings.equalizerGains[band]));
    }
    return filters;
}

/// Seconds that an effect has to hear before what counts.
double LeadIn(const ParameterValues& values)
{
    const SoundKind& kind = *SoundOf(values);
    const double tail = kind.tail ? kind.tail(ParametersAt(values, 0)) : 0;
    return std::max(AudioFilter::kLeadIn, tail);
}

} // namespace

AudioMixer::AudioMixer(Snapshot root, int sampleRate, int channels)
    : m_root(std::move(root)), m_sampleRate(sampleRate), m_channels(channels)
{
}

void AudioMixer::Mix(std::int64_t first, int count, float* samples)
{
    Render(*m_root, first, count, samples);
    DropIdleVoices(count);
}

std::int64_t AudioMixer::SampleOfFrame(std::int64_t frame) const
{
    return SampleOfFrame(frame, m_root->frameRate);
}

std::int64_t AudioMixer::SampleOfFrame(std::int64_t frame, const NLERational& rate) const
{
    return nle::SampleOfFrame(frame, rate, m_sampleRate);
}

void AudioMixer::Render(const Layer& layer, std::int64_t first, int count, float* samples)
{
    const auto content = [&](std::int64_t start, int length, float* out) {
        RenderContent(layer, start, length, out);
    };
    const auto [entry, isNew] = m_voices.try_emplace(&layer);
    Voice& voice = entry->second;
    voice.idle = 0;
    if (isNew)
        voice.effects = MakeEffects(layer);
    AudioFilter::Source source = content;
    for (const auto& effect : voice.effects) {
        source = [&effect, before = std::move(source)](std::int64_t start, int length, float* out) {
            effect->Read(start, length, before, out);
        };
    }
    source(first, count, samples);
    ApplyGains(layer, first, count, samples);
}

std::vector<std::unique_ptr<AudioFilter>> AudioMixer::MakeEffects(const Layer& layer) const
{
    std::vector<std::unique_ptr<AudioFilter>> effects;
    QStringList chain = DescribeSettings(layer.audio, m_sampleRate);
    double leadIn = AudioFilter::kLeadIn;
    const auto close = [&] {
        if (!chain.isEmpty())
            effects.push_back(std::make_unique<AudioFilter>(chain.join(QLatin1Char(',')).toLatin1(),
                                                            m_sampleRate, m_channels, leadIn));
        chain.clear();
        leadIn = AudioFilter::kLeadIn;
    };
    for (const SharedParameters& values : layer.soundEffects) {
        if (values->IsAnimated()) {
            close();
            effects.push_back(MakeAnimated(layer, values));
            continue;
        }
        chain << QString::fromLatin1(SoundOf(*values)->filter(ParametersAt(*values, 0)).Text());
        leadIn = std::max(leadIn, LeadIn(*values));
    }
    close();
    return effects;
}

std::unique_ptr<AudioFilter> AudioMixer::MakeAnimated(const Layer& layer,
                                                      const SharedParameters& values) const
{
    const double framesPerSample = ToDouble(layer.frameRate) / m_sampleRate;
    const auto filterAt = [values, framesPerSample,
                           filter = SoundOf(*values)->filter](std::int64_t sample) {
        return filter(ParametersAt(*values, double(sample) * framesPerSample));
    };
    return std::make_unique<AudioFilter>(filterAt, m_sampleRate, m_channels, LeadIn(*values));
}

void AudioMixer::RenderContent(const Layer& layer, std::int64_t first, int count, float* samples)
{
    std::fill_n(samples, size_t(count) * size_t(m_channels), 0.0f);
    // A frozen picture is silent.
    if (layer.frozenFrame)
        return;
    if (layer.kind == LayerKind::Media && layer.media->audioStream >= 0)
        ReadMedia(layer, m_voices[&layer], first, count, samples);
    for (int child = 0; child < int(layer.children.size()); ++child)
        AddChild(layer, child, first, count, samples);
}

void AudioMixer::AddChild(const Layer& parent, int index, std::int64_t first, int count,
                          float* samples)
{
    const Layer& child = *parent.children[size_t(index)];
    const auto found = parent.mixer.find(child.level);
    const tagMixerParam strip = found == parent.mixer.end() ? kNeutralStrip : found->second;
    if (child.mode == NLERender_VideoOnly || strip.mute || (AnySolo(parent.mixer) && !strip.solo))
        return;
    const std::int64_t start = SampleOfFrame(child.position, parent.frameRate);
    const std::int64_t end =
        SampleOfFrame(child.position + NLERangeLength(child.range), parent.frameRate);
    const std::int64_t from = std::max(first, start);
    const std::int64_t to = std::min(first + count, end);
    if (from >= to)
        return;
    const int length = int(to - from);
    std::vector<float> block(size_t(length) * size_t(m_channels));
    const std::int64_t inPoint = SampleOfFrame(child.range.in, child.frameRate);
    Render(child, from - start + inPoint, length, block.data());
    ApplyTransitions(parent, index, from, length, block.data());
    ApplyBalance(strip.balance, length, block.data());
    float* out = samples + (from - first) * m_channels;
    for (size_t i = 0; i < block.size(); ++i)
        out[i] += float(block[i] * strip.volume);
}

void AudioMixer::ApplyTransitions(const Layer& parent, int child, std::int64_t first, int count,
                                  float* samples) const
{
    for (const LayerTransition& transition : parent.transitions) {
        if (!transition.sounds.Has(child))
            continue;
        const std::int64_t start = SampleOfFrame(transition.position, parent.frameRate);
        const std::int64_t end = SampleOfFrame(transition.End(), parent.frameRate);
        if (start >= first + count || end <= first)
            continue;
        const auto kind =
            CrossFade(transition.At(transition.position).Whole(TransitionParameter::kSound));
        const bool comes = child == transition.sounds.to;
        const std::int64_t last = std::min(end, first + count);
        for (std::int64_t at = std::max(start, first); at < last; ++at) {
            const double progress = double(at - start) / double(end - start);
            const auto gain = float(CrossFadeGain(kind, comes, progress));
            float* const sample = samples + (at - first) * m_channels;
            std::for_each(sample, sample + m_channels, [gain](float& value) { value *= gain; });
        }
    }
}

void AudioMixer::DropIdleVoices(int count)
{
    for (auto voice = m_voices.begin(); voice != m_voices.end();) {
        // Effects take their input in larger pieces than a frame may have samples.
        const bool isOver = voice->second.idle > m_sampleRate;
        voice->second.idle += count;
        voice = isOver ? m_voices.erase(voice) : std::next(voice);
    }
}

void AudioMixer::ReadMedia(const Layer& layer, Voice& voice, std::int64_t first, int count,
                           float* samples)
{
    if (!std::exchange(voice.isOpened, true)) {
        for (const int stream : AudioStreamsOf(*layer.media, layer.source)) {
            if (auto decoder = AudioDecoder::Open(layer.media, stream, nullptr))
                voice.decoders.push_back(std::move(decoder));
        }
    }
    // Material that plays faster is read as if the output had fewer samples a second.
    const int rate = std::max(1, int(std::lround(m_sampleRate / layer.speed)));
    std::vector<float> block;
    for (const auto& decoder : voice.decoders) {
        if (decoder == voice.decoders.front()) {
            decoder->Read(first, count, rate, m_channels, samples);
            continue;
        }
        block.resize(size_t(count) * size_t(m_channels));
        decoder->Read(first, count, rate, m_channels, block.data());
        std::transform(block.begin(), block.end(), samples, samples, std::plus<>());
    }
}

void AudioMixer::ApplyGains(const Layer& layer, std::int64_t first, int count, float* samples) const
{
    const AudioSettings& audio = layer.audio;
    const auto channels = size_t(m_channels);
    const std::int64_t inPoint = SampleOfFrame(layer.range.in, layer.frameRate);
    const double framesPerSample = ToDouble(layer.frameRate) / m_sampleRate;
    const auto length = double(NLERangeLength(layer.range));
    for (int i = 0; i < count; ++i) {
        float* const sample = samples + size_t(i) * channels;
        const double frame = double(first + i - inPoint) * framesPerSample;
        double gain = audio.mute ? 0 : 1;
        if (audio.volumeEnabled)
            gain *= audio.volume * GainAt(audio.volumePoints, frame / ToDouble(layer.frameRate));
        if (audio.fadeIn && audio.fadeInFrames > 0)
            gain *= std::clamp(frame / audio.fadeInFrames, 0.0, 1.0);
        if (audio.fadeOut && audio.fadeOutFrames > 0)
            gain *= std::clamp((length - frame) / audio.fadeOutFrames, 0.0, 1.0);
        if (audio.mono)
            std::fill_n(sample, channels,
                        std::accumulate(sample, sample + channels, 0.0f) / float(channels));
        for (size_t channel = 0; channel < channels; ++channel)
            sample[channel] = float(sample[channel] * gain);
    }
    ApplyBalance(audio.balance, count, samples);
}

void AudioMixer::ApplyBalance(double balance, int count, float* samples) const
{
    if (m_channels < 2 || balance == 0)
        return;
    const auto left = float(std::min(1.0, 1 - balance));
    const auto right = float(std::min(1.0, 1 + balance));
    for (int i = 0; i < count; ++i) {
        samples[size_t(i) * size_t(m_channels)] *= left;
        samples[size_t(i) * size_t(m_channels) + 1] *= right;
    }
}

} // namespace nle
