// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/PlayScene.h"

#include "Com/ComGuard.h"

#include <algorithm>

namespace nle {

namespace {

constexpr QImage::Format kPlayFormat = QImage::Format_ARGB32;
/// Samples that a piece of scrubbed sound is faded over at both ends: 5 milliseconds.
constexpr int kGrainFade = SoundQueue::kRate / 200;

QByteArray TempoFilter(double rate)
{
    return "atempo=" + QByteArray::number(rate, 'f', 6);
}

} // namespace

void PlayComposer::SetScene(const SharedScene& scene)
{
    if (scene == m_scene)
        return;
    // Its decoders go back first, so that the next composer takes them on where they stand.
    m_composer.reset();
    m_scene.reset();
    if (!scene) {
        m_trail = {};
        return;
    }
    m_composer.emplace(scene->root);
    m_composer->SetStop(&m_stop);
    m_composer->SetTrail(&m_trail);
    m_scene = scene; // which without memory for a composer it is not
}

template <typename Draw>
PlayPicture PlayComposer::Make(int frame, const QSize& size, Draw&& draw)
{
    PlayPicture picture{frame, NLEPlayerSource_Rendered, {}, m_scene, size};
    m_trail.BeginFrame();
    ComGuard([&] {
        QRect place = PlaceRoot(m_scene->root->size, size);
        if (m_scene->cached)
            picture.image = m_scene->cached->Picture(frame, place.size());
        if (picture.image.isNull())
            picture.image = draw(&place, &picture.source);
        else
            picture.source = NLEPlayerSource_Cached;
        if (!picture.image.isNull())
            picture.image = picture.image.convertToFormat(kPlayFormat);
        return S_OK;
    });
    return picture;
}

PlayPicture PlayComposer::Compose(int frame, const QSize& size)
{
    return Make(frame, size,
                [&](QRect* place, int*) { return m_composer->Render(frame, size, place); });
}

PlayPicture PlayComposer::ComposeNear(int frame, const QSize& size)
{
    return Make(frame, size, [&](QRect* place, int* source) {
        bool isExact = true;
        QImage image = m_composer->RenderNear(frame, size, place, &isExact);
        if (!isExact)
            *source = NLEPlayerSource_Near;
        return image;
    });
}

void PlaySound::SetScene(const SharedScene& scene)
{
    m_mixer.reset();
    if (scene)
        m_mixer.emplace(scene->root, SoundQueue::kRate, SoundQueue::kChannels);
}

void PlaySound::SetPlan(const PlayPlan& plan)
{
    m_plan = plan;
    m_next = 0;
    m_tempo.reset();
    if (plan.IsSounding() && plan.Rate() != 1)
        m_tempo.emplace(TempoFilter(plan.Rate()), SoundQueue::kRate, SoundQueue::kChannels, 0.0);
}

void PlaySound::Read(int count, float* samples)
{
    const std::int64_t first = m_next;
    m_next += count;
    const auto read = [&] {
        if (!m_tempo)
            ReadMaterial(first, count, samples);
        else
            m_tempo->Read(
                first, count,
                [this](std::int64_t at, int wanted, float* out) { ReadMaterial(at, wanted, out); },
                samples);
        return S_OK;
    };
    if (!m_plan.IsSounding() || FAILED(ComGuard(read)))
        std::fill_n(samples, size_t(count) * SoundQueue::kChannels, 0.0f);
}

void PlaySound::ReadMaterial(std::int64_t first, int count, float* samples)
{
    while (count > 0) {
        const PlayPlan::Stretch stretch = m_plan.SoundAt(first);
        const int length = int(std::min<std::int64_t>(count, stretch.count));
        if (length == 0) {
            std::fill_n(samples, size_t(count) * SoundQueue::kChannels, 0.0f);
            return;
        }
        m_mixer->Mix(stretch.material, length, samples);
        first += length;
        count -= length;
        samples += size_t(length) * SoundQueue::kChannels;
    }
}

void PlaySound::ReadGrain(std::int64_t material, float* samples)
{
    const HRESULT result = ComGuard([&] {
        m_mixer->Mix(material, kGrain, samples);
        return S_OK;
    });
    if (FAILED(result))
        std::fill_n(samples, size_t(kGrain) * SoundQueue::kChannels, 0.0f);
    for (int i = 0; i < kGrain; ++i) {
        const int edge = std::min(i, kGrain - 1 - i);
        const float gain = std::min(1.0f, float(edge) / float(kGrainFade));
        for (int channel = 0; channel < SoundQueue::kChannels; ++channel)
            *samples++ *= gain;
    }
}

} // namespace nle
