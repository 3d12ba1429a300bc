// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/SourceNodes.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/DecoderPool.h"
#include "NLECore/media/FontFiles.h"
#include "NLECore/media/ImageSequence.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/scene/SourceChoice.h"

#include <algorithm>
#include <limits>

namespace nle {

namespace {

NLERational RateOf(const MediaInfo& media)
{
    return IsRate(media.frameRate) ? media.frameRate : NLERational{25, 1};
}

/// A still picture, or media that is not there: it can be drawn out.
bool IsStill(const MediaInfo& media)
{
    return media.kind == NLEMedia_Image || media.kind == NLEMedia_Offline;
}

NLERange StillRange(const NLERational& rate)
{
    return {0, std::max(1, ClampToInt(kStillSeconds * ToDouble(rate))) - 1};
}

int LongestStill(const NLERational& rate)
{
    return std::max(1, ClampToInt(kLongestStillSeconds * ToDouble(rate)));
}

HRESULT GiveStream(int stream, std::uint32_t* index)
{
    return GiveValue(index, stream < 0 ? NLENoStream : std::uint32_t(stream));
}

} // namespace

MediaClip::MediaClip(std::shared_ptr<const MediaInfo> media)
    : ComExtension(RateOf(*media)), m_media(std::move(media))
{
    if (IsStill(*m_media)) {
        const NLERange range = StillRange(FrameRate());
        SetRange(&range);
    }
}

HRESULT MediaClip::GetFilePath(wchar_t* buffer, int capacity)
{
    return ComGuard([&] { return CopyText(m_media->path.toStdWString(), buffer, capacity); });
}

HRESULT MediaClip::SetFilePath(const wchar_t* path)
{
    return Relink(path, 0);
}

HRESULT MediaClip::GetMediaInfo(INLEMediaInfo** info)
{
    return GiveNew<MediaInfoObject>(info, PlayedMedia());
}

HRESULT MediaClip::GetVideoStreamIndex(std::uint32_t* index)
{
    return GiveStream(VideoStreamOf(*m_media, Source()), index);
}

HRESULT MediaClip::GetAudioStreamIndex(std::uint32_t* index)
{
    return ComGuard([&] {
        const std::vector<int> streams = AudioStreamsOf(*m_media, Source());
        return GiveStream(streams.empty() ? -1 : streams.front(), index);
    });
}

HRESULT MediaClip::GetGPUFirst(int* preference)
{
    return GiveValue(preference, Source().gpuFirst);
}

HRESULT MediaClip::SetGPUFirst(int preference)
{
    Source().gpuFirst = preference;
    return S_OK;
}

HRESULT MediaClip::Relink(const wchar_t* path, int flags)
{
    return ComGuard([&] {
        if (!path)
            return Refuse(E_POINTER);
        const QString file = FromWide(path);
        const bool isOffline = (flags & NLERelink_AllowMissing) != 0 && !IsThere(file);
        std::shared_ptr<const MediaInfo> media =
            isOffline ? OfflineMedia(file) : DescribeFile(file);
        if (!media)
            return Refuse(E_FAIL);
        Take(std::move(media));
        return S_OK;
    });
}

HRESULT MediaClip::Reload()
{
    return ComGuard([&] {
        if (!IsThere(m_media->path)) {
            Take(OfflineMedia(m_media->path));
            return S_OK;
        }
        return Relink(m_media->path.toStdWString().c_str(), 0);
    });
}

void MediaClip::Take(std::shared_ptr<const MediaInfo> media)
{
    // The range stays, whatever the new media's length.
    PinRange();
    Decoders().Drop(m_media->path);
    m_media = std::move(media);
    m_sequence.reset();
}

const std::shared_ptr<const MediaInfo>& MediaClip::PlayedMedia() const
{
    constexpr double slowest = 0.01; // frames a second
    constexpr double fastest = 1000;
    NLERational rate = {0, 1};
    const bool isSequence = IsSequence(*m_media);
    const bool hasRate = isSequence &&
                         Bag().GetRational(NLEKey::Sequence::kFramerate, &rate) == S_OK &&
                         IsRate(rate) && ToDouble(rate) >= slowest && ToDouble(rate) <= fastest;
    if (!hasRate)
        return m_media;
    if (!m_sequence || ToDouble(m_sequence->frameRate) != ToDouble(rate))
        m_sequence = std::make_shared<MediaInfo>(AtSequenceRate(*m_media, rate));
    return m_sequence;
}

int MediaClip::TotalLength() const
{
    if (IsStill(*m_media) || IsFrozen())
        return LongestStill(FrameRate());
    const FrameTime end = LengthOf(*PlayedMedia(), Source());
    const int length = ClampToInt(std::round(end.NearestAt(FrameRate()) / Speed()));
    return end.frame > 0 ? std::max(1, length) : 0;
}

NLESize MediaClip::PictureSize() const
{
    return PictureSizeOf(*m_media, Source());
}

HRESULT MediaClip::ChangeSource(const SourceSettings& settings)
{
    // A choice that was made when the file had other streams, or was there, stays as it is.
    const bool hasVideo =
        settings.videoStream == Source().videoStream || HasVideoStream(*m_media, settings);
    const bool hasAudio =
        settings.audioStreams == Source().audioStreams || HasAudioStreams(*m_media, settings);
    if (!hasVideo || !hasAudio)
        return Refuse(E_INVALIDARG);
    const NLERange range = Range();
    const int length = TotalLength();
    Source() = settings;
    if (TotalLength() != length)
        return SetRange(&range);
    return S_OK;
}

NLEComPtr<TimelineNode> MediaClip::CopyContent(bool /*deep*/) const
{
    return MakeCom<MediaClip>(m_media);
}

void MediaClip::Describe(Layer& layer) const
{
    layer.kind = LayerKind::Media;
    layer.media = PlayedMedia();
    const std::shared_ptr<const MediaInfo>& proxy = Video().settings.proxy;
    if (Video().settings.proxyEnabled && proxy && proxy->videoStream >= 0)
        layer.proxy = Video().settings.proxy;
}

GeneratedClip::GeneratedClip(const NLERational& frameRate, NLESize size)
    : TimelineNode(frameRate), m_size(size)
{
    const NLERange range = StillRange(frameRate);
    SetRange(&range);
}

int GeneratedClip::TotalLength() const
{
    return LongestStill(FrameRate());
}

ColorClip::ColorClip(std::uint32_t argb, NLESize size, const NLERational& frameRate)
    : ComExtension(frameRate, size), m_argb(argb)
{
}

HRESULT ColorClip::GetColor(std::uint32_t* argb)
{
    return GiveValue(argb, m_argb);
}

HRESULT ColorClip::SetColor(std::uint32_t argb)
{
    m_argb = argb;
    return S_OK;
}

NLEComPtr<TimelineNode> ColorClip::CopyContent(bool /*deep*/) const
{
    return MakeCom<ColorClip>(m_argb, PictureSize(), FrameRate());
}

void ColorClip::Describe(Layer& layer) const
{
    layer.kind = LayerKind::Color;
    layer.argb = m_argb;
}

TextClip::TextClip(const QString& text, const QString& family, NLESize size,
                   const NLERational& frameRate)
    : GeneratedClip(frameRate, size), m_text(text), m_family(family)
{
}

NLEComPtr<TimelineNode> TextClip::CopyContent(bool /*deep*/) const
{
    return MakeCom<TextClip>(m_text, m_family, PictureSize(), FrameRate());
}

void TextClip::Describe(Layer& layer) const
{
    layer.kind = LayerKind::Text;
    layer.text = m_text;
    layer.family = Fonts().Provide(m_family);
}

} // namespace nle
