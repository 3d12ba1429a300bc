// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEMedia.h"
#include "NLECore/media/MediaInfo.h"

#include <memory>

namespace nle {

/// The codecs of a file.
class CodecObject final : public ComObject<INLECodec>
{
public:
    explicit CodecObject(std::shared_ptr<const MediaInfo> media) : m_media(std::move(media)) {}

    HRESULT GetMediaInfo(INLEMediaInfo** info) override;
    HRESULT GetContainerName(wchar_t* buffer, int capacity) override;
    HRESULT GetCodecName(std::uint32_t stream, wchar_t* buffer, int capacity) override;
    HRESULT GetProfileName(std::uint32_t stream, wchar_t* buffer, int capacity) override;

private:
    const std::shared_ptr<const MediaInfo> m_media;
};

} // namespace nle
