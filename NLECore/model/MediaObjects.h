// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEMedia.h"
#include "NLECore/media/MediaInfo.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace nle {

/// Describes a file for the engine, which is opened unless it is known as it is; the reason of a
/// failure goes to the engine's log.
std::shared_ptr<const MediaInfo> DescribeFile(const QString& path);
/// Describes files in their order, several at a time.
std::vector<std::shared_ptr<const MediaInfo>> DescribeFiles(const QStringList& paths);
/// Forgets what the engine knows of files.
void ForgetFiles();
/// Description of media that is not there.
std::shared_ptr<const MediaInfo> OfflineMedia(const QString& path);

/// A media description as an engine object. Clips give it out, so it stands with the nodes.
class MediaInfoObject final : public ComObject<INLEMediaInfo>
{
public:
    /// Identifier under which an object of this engine tells its class.
    static constexpr _GUID kObjectId = {
        0x9C5B40A7, 0x52B5, 0x4A0C, {0x8D, 0x55, 0x31, 0x70, 0x9E, 0x4B, 0x77, 0x02}};
    /// The description behind an engine interface; null for another engine's object.
    static std::shared_ptr<const MediaInfo> From(IUnknown* object);

    explicit MediaInfoObject(std::shared_ptr<const MediaInfo> media) : m_media(std::move(media)) {}

    HRESULT QueryInterface(REFIID iid, void** out) override;
    HRESULT GetKind(int* kind) override;
    HRESULT GetStreamCount(std::uint32_t* count) override;
    HRESULT GetStream(std::uint32_t index, NLEStreamInfo* stream) override;
    HRESULT GetFrameCountAndRate(std::uint32_t* count, NLERational* rate) override;
    HRESULT GetFilePath(wchar_t* buffer, int capacity) override;

private:
    const std::shared_ptr<const MediaInfo> m_media;
};

} // namespace nle
