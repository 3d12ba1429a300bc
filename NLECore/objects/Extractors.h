// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFrames.h"
#include "NLECore/render/AudioMixer.h"
#include "NLECore/render/CachedFrames.h"
#include "NLECore/render/Composer.h"

#include <atomic>
#include <memory>
#include <optional>

namespace nle {

/// Renders frames and sound of any node from a snapshot.
class FrameExtractor final : public ComObject<INLEFrameExtractor, INLEFrameScrubber>
{
public:
    HRESULT Open(INLETimeline* timeline, int flags) override;
    HRESULT Extract(int frame, INLEVideoFrame* picture) override;
    HRESULT ExtractAudio(int frame, INLEAudioFrame* sound) override;
    HRESULT Finish() override;

    HRESULT ExtractNear(int frame, INLEVideoFrame* picture, int* precision) override;
    HRESULT Interrupt() override;

private:
    /// The picture of \a frame from the cache or else drawn by \a draw, copied into \a picture.
    template <typename Draw>
    HRESULT Fill(int frame, INLEVideoFrame* picture, Draw&& draw);
    bool HasFrame(int frame) const { return m_root && frame >= 0 && frame < m_length; }

    Snapshot m_root;
    int m_length = 0;
    std::atomic<bool> m_isInterrupted{false};
    std::optional<Composer> m_composer;
    std::unique_ptr<CachedFrames> m_cached;
    std::unique_ptr<AudioMixer> m_mixer;
};

/// Small pictures of a media file.
class ThumbnailExtractor final : public ComObject<INLEThumbnailExtractor>
{
public:
    HRESULT SetSource(INLEMediaInfo* info, std::uint32_t videoStream) override;
    HRESULT Extract(int frame, NLESize wanted, INLEPicture** picture) override;
    HRESULT Finish() override;

private:
    bool HasFrame(const MediaStream& stream, int frame) const;

    std::shared_ptr<const MediaInfo> m_media;
    int m_stream = -1;
};

} // namespace nle
