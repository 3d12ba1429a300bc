// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/MediaEncoder.h"

#include "Com/ComGuard.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/model/CompositeNode.h"
#include "NLECore/objects/TimelineFactory.h"
#include "NLECore/render/AudioMixer.h"
#include "NLECore/render/Composer.h"
#include "NLECore/scene/FrameMath.h"

#include <QPainter>

namespace nle {

namespace {

/// Outside of these nothing is written: a frame's sound must fit into memory.
constexpr double kLowestRate = 0.1; // frames a second
constexpr int kHighestSampleRate = 384000;
constexpr int kMostChannels = 64;

int OrDefault(int value, int preset)
{
    return value > 0 ? value : preset;
}

bool HasSound(const Layer& layer)
{
    if (layer.media && layer.media->audioStream >= 0)
        return true;
    return std::any_of(layer.children.begin(), layer.children.end(),
                       [](const Snapshot& child) { return HasSound(*child); });
}

/// Codecs that halve the colour planes need even sides; empty for what has no picture.
QSize EvenSize(NLESize size)
{
    if (size.width < 1 || size.height < 1)
        return {};
    return QSize(std::max(size.width & ~1, 2), std::max(size.height & ~1, 2));
}

HRESULT ResultOf(WriterError::Kind kind)
{
    switch (kind) {
    case WriterError::Kind::Container:
        return E_NOTIMPL;
    case WriterError::Kind::File:
        return E_ACCESSDENIED;
    case WriterError::Kind::Settings:
        break;
    }
    return E_INVALIDARG;
}

/// A file is written at its full size, however small the preview is.
Snapshot AtFullSize(const Snapshot& root)
{
    auto copy = std::make_shared<Layer>(*root);
    copy->context.previewScale = 1;
    return copy;
}

/// The rendered picture on a black frame.
QImage OnFrame(const QImage& picture, const QRect& place, const QSize& size)
{
    if (picture.size() == size && !picture.hasAlphaChannel())
        return picture;
    QImage frame(size, QImage::Format_RGB32);
    frame.fill(Qt::black);
    if (!picture.isNull())
        QPainter(&frame).drawImage(place.topLeft(), picture);
    return frame;
}

} // namespace

HRESULT MediaEncoder::Open(INLETimeline* timeline, const wchar_t* path,
                           const NLEEncodeSettings* settings)
{
    return ComGuard([&] {
        m_root.reset();
        const TimelineNode* node = TimelineNode::From(timeline);
        if (!node || !path)
            return E_INVALIDARG;
        const Snapshot root = AtFullSize(node->MakeSnapshot());
        m_path = QString::fromWCharArray(path);
        if (!TakeSettings(*node, *root, settings ? *settings : NLEEncodeSettings{}))
            return E_INVALIDARG;
        WriterError error;
        if (!MediaWriter::Try(m_path, m_settings, &error)) {
            Warn(error.text);
            return ResultOf(error.kind);
        }
        m_root = root;
        return S_OK;
    });
}

bool MediaEncoder::TakeSettings(const TimelineNode& node, const Layer& root,
                                const NLEEncodeSettings& wanted)
{
    // A clip is encoded as it is trimmed, a composite as long as it has clips.
    const NLERange whole =
        root.kind == LayerKind::Composite ? NLERange{0, node.TotalLength() - 1} : root.range;
    const bool wantsAll = wanted.range.in == 0 && wanted.range.out == 0;
    m_range = NLERangeLength(wanted.range) > 0 && !wantsAll ? wanted.range : whole;
    const bool hasSize = wanted.frameSize.width > 1 && wanted.frameSize.height > 1;
    m_settings.size = EvenSize(hasSize ? wanted.frameSize : root.size);
    m_frameRate = IsRate(wanted.frameRate) ? wanted.frameRate : node.FrameRate();
    m_settings.frameRate = m_frameRate;
    m_settings.quality = OrDefault(wanted.quality, 20);
    const auto* project = dynamic_cast<const ProjectNode*>(&node);
    const tagNLEProjectProfile& profile = project ? project->Profile() : kDefaultProfile;
    m_settings.sampleRate = OrDefault(wanted.sampleRate, profile.sampleRate);
    m_settings.channels = OrDefault(wanted.channels, profile.channels);
    m_settings.audioBitRate = OrDefault(wanted.audioBitRate, 192000);
    m_settings.hasSound = HasSound(root);
    const bool isCountable = ToDouble(m_frameRate) >= kLowestRate && ToDouble(node.FrameRate()) > 0;
    const bool isAudible =
        m_settings.sampleRate <= kHighestSampleRate && m_settings.channels <= kMostChannels;
    return NLERangeLength(m_range) > 0 && isCountable && isAudible;
}

HRESULT MediaEncoder::Encode(NLEProgressCallback callback, void* userData)
{
    return ComGuard([&] {
        if (!m_root)
            return E_FAIL;
        WriterError error;
        const std::unique_ptr<MediaWriter> writer = MediaWriter::Open(m_path, m_settings, &error);
        if (!writer) {
            Warn(error.text);
            return E_FAIL;
        }
        const WriterSettings& settings = writer->Settings();
        Composer composer(m_root);
        AudioMixer mixer(m_root, settings.sampleRate, settings.channels);
        std::vector<float> sound;
        const NLERational& ownRate = m_root->frameRate;
        const auto length = std::llround(double(NLERangeLength(m_range)) * ToDouble(m_frameRate) /
                                         ToDouble(ownRate));
        const std::int64_t firstSample = mixer.SampleOfFrame(m_range.in);
        const auto sampleOf = [&](std::int64_t frame) {
            return firstSample +
                   std::llround(double(frame) * settings.sampleRate / ToDouble(m_frameRate));
        };
        bool written = true;
        for (std::int64_t done = 0; written && done < length; ++done) {
            if (callback && callback(int(done * 100 / length), userData) != 0)
                return S_FALSE;
            if (writer->HasPicture()) {
                QRect place;
                const std::int64_t frame =
                    m_range.in + FrameTime{double(done), m_frameRate}.ShownAt(ownRate);
                const QImage picture = composer.Render(frame, settings.size, &place);
                written = writer->WritePicture(OnFrame(picture, place, settings.size));
            }
            if (written && writer->HasSound()) {
                const std::int64_t first = sampleOf(done);
                const int count = int(sampleOf(done + 1) - first);
                sound.resize(size_t(count) * size_t(settings.channels));
                mixer.Mix(first, count, sound.data());
                written = writer->WriteSound(sound.data(), count);
            }
        }
        if (!written || !writer->Finish()) {
            Warn(writer->Error());
            return E_FAIL;
        }
        if (callback)
            callback(100, userData);
        return S_OK;
    });
}

void MediaEncoder::Warn(const QString& reason) const
{
    qCWarning(lcEngine, "%s is not written: %s", qUtf8Printable(m_path), qUtf8Printable(reason));
}

} // namespace nle
