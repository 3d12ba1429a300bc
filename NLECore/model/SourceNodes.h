// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLETitle.h"
#include "NLECore/model/TimelineNode.h"

namespace nle {

/// Seconds that a still picture, a colour or a text plays until it is trimmed.
constexpr int kStillSeconds = 5;
/// Seconds to which such a clip may be drawn out.
constexpr int kLongestStillSeconds = 24 * 60 * 60;

/// A clip of a media file.
class MediaClip final : public ComExtension<TimelineNode, INLETimelineSource,
                                            INLETimelineSourceDecoder, INLEMediaRelink>
{
public:
    explicit MediaClip(std::shared_ptr<const MediaInfo> media);

    HRESULT GetFilePath(wchar_t* buffer, int capacity) override;
    HRESULT SetFilePath(const wchar_t* path) override;
    HRESULT GetMediaInfo(INLEMediaInfo** info) override;
    HRESULT GetVideoStreamIndex(std::uint32_t* index) override;
    HRESULT GetAudioStreamIndex(std::uint32_t* index) override;

    HRESULT GetGPUFirst(int* preference) override;
    HRESULT SetGPUFirst(int preference) override;

    HRESULT Relink(const wchar_t* path, int flags) override;
    HRESULT Reload() override;

    int TotalLength() const override;
    NLESize PictureSize() const override;
    bool PlaysFile() const override { return true; }
    HRESULT ChangeSource(const SourceSettings& settings) override;

    const MediaInfo& Media() const { return *m_media; }

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& layer) const override;

private:
    void Take(std::shared_ptr<const MediaInfo> media);
    /// The media as it plays: an image sequence at the rate that the clip's properties name.
    const std::shared_ptr<const MediaInfo>& PlayedMedia() const;

    std::shared_ptr<const MediaInfo> m_media;
    /// The sequence at the rate that was named last; null until then.
    mutable std::shared_ptr<const MediaInfo> m_sequence;
};

/// A clip that is drawn, not read: as long as anybody wants it.
class GeneratedClip : public TimelineNode
{
public:
    int TotalLength() const override;
    NLESize PictureSize() const override { return m_size; }

protected:
    GeneratedClip(const NLERational& frameRate, NLESize size);

private:
    const NLESize m_size;
};

/// A plain colour.
class ColorClip final : public ComExtension<GeneratedClip, INLEColorClip>
{
public:
    ColorClip(std::uint32_t argb, NLESize size, const NLERational& frameRate);

    HRESULT GetColor(std::uint32_t* argb) override;
    HRESULT SetColor(std::uint32_t argb) override;

    std::uint32_t Argb() const { return m_argb; }

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& layer) const override;

private:
    std::uint32_t m_argb;
};

/// White text in the middle of a transparent picture.
class TextClip final : public GeneratedClip
{
public:
    TextClip(const QString& text, const QString& family, NLESize size,
             const NLERational& frameRate);

    const QString& Text() const { return m_text; }
    const QString& Family() const { return m_family; }

protected:
    NLEComPtr<TimelineNode> CopyContent(bool deep) const override;
    void Describe(Layer& layer) const override;

private:
    const QString m_text;
    const QString m_family;
};

} // namespace nle
